-- Registro di protocollo. La numerazione è annuale e il mese resta 0; prima ricominciava ogni mese.
CREATE TABLE prot_argomenti (
  cd_argomento LONG CONSTRAINT PrimaryKey PRIMARY KEY,
  ds_argomento TEXT(100) NOT NULL,
  cd_padre LONG DEFAULT 0);

CREATE TABLE prot_registrazione (
  anno SHORT NOT NULL,
  mese SHORT NOT NULL DEFAULT 0,
  tipo TEXT(3) NOT NULL,
  id_prot LONG NOT NULL,
  dt_registrazione DATETIME,
  ds_oggetto TEXT(255),
  ds_corrispondente TEXT(120),
  nr_prot_mittente TEXT(30),
  dt_prot_mittente DATETIME,
  fl_riservato YESNO,
  cd_utente TEXT(20),
  ds_note MEMO,
  CONSTRAINT PrimaryKey PRIMARY KEY (anno, mese, tipo, id_prot));
CREATE INDEX DataRegistrazione ON prot_registrazione (dt_registrazione DESC, id_prot DESC);
CREATE INDEX Corrispondente ON prot_registrazione (ds_corrispondente) WITH IGNORE NULL;

CREATE TABLE prot_reg_contenuti (
  anno SHORT NOT NULL,
  mese SHORT NOT NULL DEFAULT 0,
  tipo TEXT(3) NOT NULL,
  id_prot LONG NOT NULL,
  progressivo SHORT NOT NULL,
  cd_argomento LONG,
  ds_contenuto TEXT(255),
  ds_file TEXT(255),
  CONSTRAINT PrimaryKey PRIMARY KEY (anno, mese, tipo, id_prot, progressivo));

CREATE TABLE prot_interno (
  anno SHORT NOT NULL,
  mese SHORT NOT NULL DEFAULT 0,
  id_prot LONG NOT NULL,
  dt_registrazione DATETIME,
  ds_oggetto TEXT(255),
  ds_ufficio TEXT(60),
  CONSTRAINT PrimaryKey PRIMARY KEY (anno, mese, id_prot));

CREATE TABLE prot_int_contenuti (
  anno SHORT NOT NULL,
  mese SHORT NOT NULL DEFAULT 0,
  id_prot LONG NOT NULL,
  progressivo SHORT NOT NULL,
  cd_argomento LONG,
  ds_contenuto TEXT(255),
  CONSTRAINT PrimaryKey PRIMARY KEY (anno, mese, id_prot, progressivo));

CREATE TABLE prot_sviluppo_liste (
  anno SHORT NOT NULL,
  mese SHORT NOT NULL DEFAULT 0,
  tipo TEXT(3) NOT NULL,
  id_prot LONG NOT NULL,
  progressivo SHORT NOT NULL,
  cd_classe TEXT(1),
  cd_matr LONG,
  ds_nominativo TEXT(120),
  CONSTRAINT PrimaryKey PRIMARY KEY (anno, mese, tipo, id_prot, progressivo));

-- Il mese dei contenuti cambia prima di quello della registrazione: tra le due non c'è una relazione.
ALTER TABLE prot_reg_contenuti ADD CONSTRAINT prot_argomenti_contenuti
  FOREIGN KEY (cd_argomento) REFERENCES prot_argomenti (cd_argomento) ON UPDATE CASCADE;
ALTER TABLE prot_int_contenuti ADD CONSTRAINT prot_argomenti_int_contenuti
  FOREIGN KEY (cd_argomento) REFERENCES prot_argomenti (cd_argomento) ON UPDATE CASCADE;

INSERT INTO prot_argomenti VALUES (1, 'Iscrizioni e cancellazioni', 0);
INSERT INTO prot_argomenti VALUES (2, 'Praticanti', 0);
INSERT INTO prot_argomenti VALUES (3, 'Quote', 0);
INSERT INTO prot_argomenti VALUES (4, 'Solleciti e morosità', 3);
INSERT INTO prot_argomenti VALUES (5, 'Parcelle', 0);
INSERT INTO prot_argomenti VALUES (6, 'Formazione', 0);
INSERT INTO prot_argomenti VALUES (7, 'Disciplinare', 0);
INSERT INTO prot_argomenti VALUES (8, 'Rapporti con altri ordini', 0);
INSERT INTO prot_argomenti VALUES (9, 'Posta certificata', 0);
