-- Lettere, certificati e tesserini.
CREATE TABLE tb_notifiche (
  Progressivo SHORT CONSTRAINT PrimaryKey PRIMARY KEY,
  ds_notifica TEXT(100),
  cd_rep_nome TEXT(40),
  cd_tipo TEXT(2),
  cd_stato TEXT(2),
  cd_statomot TEXT(2));

CREATE TABLE tb_certificati (
  Progressivo SHORT CONSTRAINT PrimaryKey PRIMARY KEY,
  ds_certificato TEXT(100),
  cd_rep_nome TEXT(40),
  cd_tipo TEXT(2),
  cd_stato TEXT(2),
  cd_rep_nome2 TEXT(40));

CREATE TABLE tb_tesserini_setup (
  cd_setup LONG CONSTRAINT PrimaryKey PRIMARY KEY,
  ds_setup TEXT(60),
  Classe TEXT(1) DEFAULT 'C',
  nr_margine_sx SINGLE DEFAULT 0,
  nr_margine_top SINGLE DEFAULT 0);

CREATE TABLE tb_tesserini (
  cd_matr LONG NOT NULL,
  nr_tesserino LONG NOT NULL,
  dt_rilascio DATETIME,
  dt_scadenza DATETIME,
  cd_classe TEXT(1) DEFAULT 'C',
  CONSTRAINT PrimaryKey PRIMARY KEY (cd_matr, nr_tesserino));

-- Dove le stampe preparano le loro righe; ogni aggiornamento le vuota.
CREATE TABLE tmp_rag (
  matricola LONG,
  ds_nominativo TEXT(101),
  ds_ordinamento TEXT(120));
CREATE INDEX matricola ON tmp_rag (matricola);

CREATE TABLE tmp_prat (
  matricola LONG,
  ds_nominativo TEXT(101),
  ds_ordinamento TEXT(120));
CREATE INDEX matricola ON tmp_prat (matricola);

CREATE TABLE tmp_morosi (
  matricola LONG,
  cd_anno SHORT,
  ip_dovutoEuro CURRENCY DEFAULT 0);
CREATE INDEX matricola ON tmp_morosi (matricola, cd_anno);

CREATE TABLE tmp_simp (
  matricola LONG,
  ds_nominativo TEXT(101));
