-- Studi associati, enti, gruppi e simpatizzanti.
CREATE TABLE associati (
  cd_gruppo LONG CONSTRAINT PrimaryKey PRIMARY KEY,
  ds_denominazione TEXT(120) NOT NULL,
  nr_sezione LONG DEFAULT 0,
  ds_indirizzo TEXT(120),
  cd_cap TEXT(5),
  ds_localita TEXT(60),
  fl_spedizione TEXT(1) DEFAULT '2',
  cd_provincia TEXT(2),
  cd_fiscale TEXT(16),
  cd_stato_attuale TEXT(2),
  dt_iscrizione DATETIME,
  nr_telefono TEXT(20),
  nr_telefono2 TEXT(20),
  nr_telefono3 TEXT(20),
  nr_fax TEXT(20),
  nr_fax2 TEXT(20),
  nr_fax3 TEXT(20),
  ds_internet TEXT(80),
  ds_legalmail TEXT(80),
  fl_revisore_legale YESNO,
  nr_revisore_legale TEXT(20),
  fl_web YESNO,
  fl_norvo_unico YESNO,
  cd_norvo_unico TEXT(10),
  note_norvo_unico MEMO);
CREATE INDEX Denominazione ON associati (ds_denominazione);

-- Chi fa parte di uno studio: C iscritti, S simpatizzanti.
CREATE TABLE componenti_associati (
  cd_gruppo LONG NOT NULL,
  cd_classe TEXT(1) NOT NULL DEFAULT 'C',
  cd_matr LONG NOT NULL,
  CONSTRAINT PrimaryKey PRIMARY KEY (cd_gruppo, cd_classe, cd_matr));
CREATE INDEX Componente ON componenti_associati (cd_classe, cd_matr);

CREATE TABLE simpatizzante (
  cd_matr LONG CONSTRAINT PrimaryKey PRIMARY KEY,
  ds_cognome TEXT(50) NOT NULL,
  ds_nome TEXT(50),
  ds_qualifica TEXT(60),
  ds_citta TEXT(60),
  cd_classe TEXT(1) DEFAULT 'S',
  nr_telefono_ab TEXT(20),
  nr_fax_ab TEXT(20),
  fl_spedizione TEXT(1) DEFAULT '2');
CREATE INDEX Nominativo ON simpatizzante (ds_cognome, ds_nome);

CREATE TABLE enti (
  cd_ente LONG CONSTRAINT PrimaryKey PRIMARY KEY,
  ds_ente TEXT(120) NOT NULL,
  ds_indirizzo TEXT(120),
  ds_citta TEXT(60),
  fl_spedizione TEXT(1) DEFAULT '2',
  cd_cap TEXT(5),
  cd_provincia TEXT(2));

CREATE TABLE gruppi (
  cd_gruppo LONG CONSTRAINT PrimaryKey PRIMARY KEY,
  ds_gruppo TEXT(60) NOT NULL,
  ds_note MEMO,
  fl_spedizione TEXT(1) DEFAULT '2');
