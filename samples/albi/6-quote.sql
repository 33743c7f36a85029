-- Quote. Ogni importo in lire ha il suo gemello in euro.
CREATE TABLE tb_quote (
  cd_anno SHORT NOT NULL,
  nr_norvo SHORT NOT NULL DEFAULT 1,
  ds_quota TEXT(60),
  ip_quota_fissa DOUBLE DEFAULT 0,
  ip_quota_g DOUBLE DEFAULT 0,
  ip_quota_fissaEuro CURRENCY DEFAULT 0,
  ip_quota_gEuro CURRENCY DEFAULT 0,
  ip_quota_sEuro CURRENCY DEFAULT 0,
  fl_nascita YESNO,
  fl_iscrizione YESNO,
  fl_prima_iscrizione YESNO,
  CONSTRAINT PrimaryKey PRIMARY KEY (cd_anno, nr_norvo));

-- La chiave riassume gli altri campi della riga.
CREATE TABLE tb_quote_param (
  cd_anno SHORT NOT NULL,
  nr_norvo SHORT NOT NULL DEFAULT 1,
  fl_norvo YESNO DEFAULT True,
  fl_elenco YESNO,
  fl_praticante YESNO,
  Tipo TEXT(2),
  ip_quota DOUBLE DEFAULT 0,
  ip_quotaEuro CURRENCY DEFAULT 0,
  fl_stp YESNO,
  fl_iscrizione YESNO,
  fl_nascita YESNO,
  dt_inizio DATETIME,
  codice_trib TEXT(10),
  sezione TEXT(5),
  stato_cassa SHORT,
  Categoria LONG,
  chiave TEXT(120));
CREATE INDEX Chiave ON tb_quote_param (chiave);
CREATE INDEX Anno ON tb_quote_param (cd_anno, nr_norvo);

CREATE TABLE tb_quote_mora (
  cd_anno SHORT NOT NULL,
  nr_giorni SHORT NOT NULL DEFAULT 30,
  ip_mora DOUBLE DEFAULT 0,
  ip_mora_g DOUBLE DEFAULT 0,
  ip_moraEuro CURRENCY DEFAULT 0,
  ip_mora_gEuro CURRENCY DEFAULT 0,
  CONSTRAINT PrimaryKey PRIMARY KEY (cd_anno, nr_giorni));

CREATE TABLE quote_param (
  cd_anno SHORT CONSTRAINT PrimaryKey PRIMARY KEY,
  quota_contributo DOUBLE DEFAULT 0,
  quota_nazionale DOUBLE DEFAULT 0,
  quota_contributoEuro CURRENCY DEFAULT 0,
  quota_nazionaleEuro CURRENCY DEFAULT 0);

CREATE TABLE quote_dovute (
  cd_matr LONG NOT NULL,
  cd_anno SHORT NOT NULL,
  ip_quota DOUBLE DEFAULT 0,
  quota_pagata DOUBLE DEFAULT 0,
  dt_scadenza DATETIME,
  ip_quotaEuro CURRENCY DEFAULT 0,
  quota_pagataEuro CURRENCY DEFAULT 0,
  CONSTRAINT PrimaryKey PRIMARY KEY (cd_matr, cd_anno));
CREATE INDEX Anno ON quote_dovute (cd_anno, cd_matr);

CREATE TABLE quote_pagate (
  nr_ricevuta LONG CONSTRAINT PrimaryKey PRIMARY KEY,
  cd_matr LONG NOT NULL,
  cd_anno SHORT NOT NULL,
  dt_pagamento DATETIME,
  ip_aggio DOUBLE DEFAULT 0,
  ip_incassato DOUBLE DEFAULT 0,
  ip_interessi DOUBLE DEFAULT 0,
  ip_iva DOUBLE DEFAULT 0,
  ip_versato DOUBLE DEFAULT 0,
  ip_aggioEuro CURRENCY DEFAULT 0,
  ip_incassatoEuro CURRENCY DEFAULT 0,
  ip_interessiEuro CURRENCY DEFAULT 0,
  ip_ivaEuro CURRENCY DEFAULT 0,
  ip_versatoEuro CURRENCY DEFAULT 0);
CREATE INDEX Iscritto ON quote_pagate (cd_matr, cd_anno DESC);

-- Aggio dell'esattore sugli importi messi a ruolo.
CREATE TABLE tb_compenso (
  cd_compenso LONG CONSTRAINT PrimaryKey PRIMARY KEY,
  ds_compenso TEXT(60),
  pc_compenso SINGLE DEFAULT 0,
  ip_min_ruoli DOUBLE DEFAULT 0,
  ip_max_ruoli DOUBLE DEFAULT 0,
  ip_min_ruoliEuro CURRENCY DEFAULT 0,
  ip_max_ruoliEuro CURRENCY DEFAULT 0);

ALTER TABLE quote_dovute ADD CONSTRAINT ragioniere_quote_dovute
  FOREIGN KEY (cd_matr) REFERENCES ragioniere (cd_matr) ON UPDATE CASCADE;
ALTER TABLE quote_pagate ADD CONSTRAINT quote_dovute_quote_pagate
  FOREIGN KEY (cd_matr, cd_anno) REFERENCES quote_dovute (cd_matr, cd_anno) ON UPDATE CASCADE;
