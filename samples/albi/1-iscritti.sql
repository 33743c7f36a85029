-- Iscritti agli albi.
CREATE TABLE ragioniere (
  cd_matr LONG CONSTRAINT PrimaryKey PRIMARY KEY,
  ds_cognome TEXT(50) NOT NULL,
  ds_nome TEXT(50) NOT NULL,
  cd_sesso TEXT(1),
  dt_nascita DATETIME,
  ds_luogo_nascita TEXT(60),
  cd_fiscale TEXT(16),
  nr_norvo SHORT DEFAULT 1,
  nr_collegio LONG DEFAULT 0,
  nr_sezione LONG DEFAULT 0,
  [Set] TEXT(5),
  dt_iscrizione DATETIME,
  cd_stato_attuale TEXT(2),
  cd_stato_elenco TEXT(2),
  fl_iscritto_elenco YESNO,
  fl_spedizione TEXT(1) DEFAULT '2',
  ds_ind_studio TEXT(120),
  cd_cap_studio TEXT(5),
  ds_comune_studio TEXT(60),
  cd_sg_prov_studio TEXT(2),
  ds_internet TEXT(80),
  ds_reg_cert_energetico TEXT(40),
  ds_reg_cert_acustico TEXT(40),
  ds_reg_cert_energetico2 TEXT(40),
  CompagniaAssicurazione TEXT(60),
  ds_note MEMO,
  cd_classe TEXT(1) DEFAULT 'C',
  dt_iscrizione_elenco DATETIME,
  dt_prima_iscrizione DATETIME,
  dt_abilitazione DATETIME,
  dt_anzianita DATETIME,
  nr_elenco LONG DEFAULT 0,
  dt_iscr_cassa_prev DATETIME,
  ds_anzianita TEXT(255),
  ds_stato_attuale TEXT(40),
  ds_stato_elenco TEXT(40),
  cd_domanda LONG DEFAULT 0,
  cd_domanda_elenco LONG DEFAULT 0,
  cd_sg_prov_nascita TEXT(2),
  cd_sta_nascita TEXT(3),
  fl_recapito TEXT(1) DEFAULT '1',
  ds_presso_studio TEXT(60),
  nr_tl_studio TEXT(20),
  nr_tl_studio2 TEXT(20),
  nr_tl_studio3 TEXT(20),
  nr_fax_studio TEXT(20),
  ds_ind_res TEXT(120),
  ds_comune_res TEXT(60),
  cd_cap_res TEXT(5),
  cd_sg_prov_res TEXT(2),
  nr_tl_res TEXT(20),
  nr_tl_res2 TEXT(20),
  nr_fax_res TEXT(20),
  ds_legalmail TEXT(80),
  codice_trib TEXT(10),
  fl_revisore_conta YESNO,
  nr_iscr_rev TEXT(20),
  cd_ordine1 LONG,
  cd_ordine2 LONG,
  cd_ordine3 LONG,
  DatiProfessionali MEMO,
  Settori MEMO,
  SettoriExt MEMO,
  fl_old_ordinamento YESNO,
  fl_web YESNO,
  fl_norvo_unico YESNO,
  cd_norvo_unico TEXT(10),
  note_norvo_unico MEMO);
CREATE INDEX Nominativo ON ragioniere (ds_cognome, ds_nome);
CREATE UNIQUE INDEX NumeroAlbo ON ragioniere (nr_norvo, nr_collegio);
CREATE INDEX NumeroElenco ON ragioniere (nr_norvo, nr_elenco);
CREATE INDEX CodiceFiscale ON ragioniere (cd_fiscale) WITH IGNORE NULL;
CREATE INDEX Stato ON ragioniere (cd_stato_attuale, cd_stato_elenco);

CREATE TABLE privacy (
  cd_matr LONG CONSTRAINT PrimaryKey PRIMARY KEY,
  aut_res YESNO DEFAULT True,
  aut_studio YESNO DEFAULT True,
  aut_tel YESNO,
  aut_email YESNO,
  dt_autorizzazione DATETIME);

CREATE TABLE altri_recapiti (
  cd_classe TEXT(1) NOT NULL DEFAULT 'C',
  cd_matr LONG NOT NULL,
  progressivo_recapito SHORT NOT NULL,
  flg_invio_corr YESNO,
  ds_indirizzo TEXT(120),
  ds_localita TEXT(60),
  cd_provincia TEXT(2),
  cd_cap TEXT(5),
  ds_presso TEXT(60),
  nr_telefono TEXT(20),
  nr_fax TEXT(20),
  CONSTRAINT PrimaryKey PRIMARY KEY (cd_classe, cd_matr, progressivo_recapito));

CREATE TABLE tb_indirizzo (
  cd_matr LONG NOT NULL,
  Progressivo SHORT NOT NULL,
  cd_tipo_indirizzo TEXT(1) DEFAULT 'S',
  ds_indirizzo TEXT(120),
  ds_localita TEXT(60),
  cd_provincia TEXT(2),
  cd_cap TEXT(5),
  CONSTRAINT PrimaryKey PRIMARY KEY (cd_matr, Progressivo));

CREATE TABLE titolo_studio_rag (
  cd_matr LONG NOT NULL,
  Progressivo LONG NOT NULL,
  ds_titolo TEXT(100),
  ds_istituto TEXT(100),
  dt_conseguimento DATETIME,
  nr_voto TEXT(10),
  CONSTRAINT PrimaryKey PRIMARY KEY (cd_matr, Progressivo));

CREATE TABLE lingue_rag (
  cd_matr LONG NOT NULL,
  cd_lingua TEXT(2) NOT NULL,
  nr_livello BYTE DEFAULT 1,
  CONSTRAINT PrimaryKey PRIMARY KEY (cd_matr, cd_lingua));

ALTER TABLE privacy ADD CONSTRAINT ragioniere_privacy
  FOREIGN KEY (cd_matr) REFERENCES ragioniere (cd_matr) ON UPDATE CASCADE ON DELETE CASCADE;
ALTER TABLE tb_indirizzo ADD CONSTRAINT ragioniere_indirizzo
  FOREIGN KEY (cd_matr) REFERENCES ragioniere (cd_matr) ON UPDATE CASCADE ON DELETE CASCADE;
ALTER TABLE titolo_studio_rag ADD CONSTRAINT ragioniere_titolo_studio
  FOREIGN KEY (cd_matr) REFERENCES ragioniere (cd_matr) ON UPDATE CASCADE ON DELETE CASCADE;
ALTER TABLE lingue_rag ADD CONSTRAINT ragioniere_lingue
  FOREIGN KEY (cd_matr) REFERENCES ragioniere (cd_matr) ON UPDATE CASCADE ON DELETE CASCADE;
