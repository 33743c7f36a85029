-- Praticanti e la loro storia.
CREATE TABLE praticante (
  cd_matr LONG CONSTRAINT PrimaryKey PRIMARY KEY,
  ds_cognome TEXT(50) NOT NULL,
  ds_nome TEXT(50) NOT NULL,
  dt_nascita DATETIME,
  cd_fiscale TEXT(16),
  nr_sezione LONG DEFAULT 0,
  sezione TEXT(5),
  cd_stato_corr TEXT(2),
  dt_inizio_pratica DATETIME,
  dt_scadenza_relazione DATETIME,
  ds_cognome_prof TEXT(50),
  cd_nr_collegio LONG DEFAULT 0,
  cd_abilitazione LONG,
  cd_classe TEXT(1) DEFAULT 'P',
  dt_iscrizione DATETIME,
  dt_fine_pratica DATETIME,
  studio_prof YESNO,
  cd_nr_norvo SHORT DEFAULT 0,
  cd_matr_esterno LONG DEFAULT 0,
  nr_esterno LONG DEFAULT 0,
  nr_sezione_prof LONG DEFAULT 0,
  sezione_prof TEXT(5),
  ds_ordine_prof TEXT(60),
  fl_esito_esame YESNO,
  fl_compiuto_tirocinio YESNO);
CREATE INDEX Nominativo ON praticante (ds_cognome, ds_nome);
CREATE INDEX Professionista ON praticante (cd_nr_norvo, cd_nr_collegio);

CREATE TABLE status_praticante (
  cd_prg COUNTER CONSTRAINT PrimaryKey PRIMARY KEY,
  cd_matr LONG NOT NULL,
  cd_evento TEXT(2) NOT NULL DEFAULT 'PR',
  cd_tip_evento TEXT(2) NOT NULL,
  cd_mot_evento TEXT(2),
  dt_evento DATETIME,
  dt_delibera DATETIME,
  dt_finale DATETIME,
  nr_protocollo TEXT(20),
  nr_sezione LONG DEFAULT 0,
  sezione TEXT(5));
CREATE INDEX Storia ON status_praticante (cd_matr, dt_evento);

CREATE TABLE stato_attuale_prat (
  cd_matr LONG CONSTRAINT PrimaryKey PRIMARY KEY,
  cd_tip_evento TEXT(2),
  cd_mot_evento TEXT(2),
  dt_evento DATETIME,
  nr_sezione LONG DEFAULT 0,
  sezione TEXT(5));

-- I professionisti presso cui un praticante ha fatto pratica.
CREATE TABLE Status_Prof_Praticante (
  cd_prg COUNTER CONSTRAINT PrimaryKey PRIMARY KEY,
  cd_matr LONG NOT NULL,
  Cognome TEXT(50),
  Nome TEXT(50),
  nr_collegio LONG DEFAULT 0,
  Data_Cambio DATETIME,
  nr_norvo SHORT DEFAULT 0,
  nr_esterno LONG DEFAULT 0,
  nr_sezione LONG DEFAULT 0);
CREATE INDEX Praticante ON Status_Prof_Praticante (cd_matr, Data_Cambio);

CREATE TABLE tb_domande_prat (
  cd_prg COUNTER CONSTRAINT PrimaryKey PRIMARY KEY,
  nr_protocollo TEXT(20),
  dt_protocollo DATETIME,
  nr_collegio LONG DEFAULT 0,
  st_istruttoria TEXT(2),
  cd_matr LONG,
  nr_sezione LONG DEFAULT 0,
  sezione TEXT(5));
CREATE INDEX Protocollo ON tb_domande_prat (nr_protocollo);

ALTER TABLE status_praticante ADD CONSTRAINT praticante_status
  FOREIGN KEY (cd_matr) REFERENCES praticante (cd_matr) ON UPDATE CASCADE ON DELETE CASCADE;
ALTER TABLE stato_attuale_prat ADD CONSTRAINT praticante_stato_attuale
  FOREIGN KEY (cd_matr) REFERENCES praticante (cd_matr) ON UPDATE CASCADE ON DELETE CASCADE;
ALTER TABLE Status_Prof_Praticante ADD CONSTRAINT praticante_professionisti
  FOREIGN KEY (cd_matr) REFERENCES praticante (cd_matr) ON UPDATE CASCADE ON DELETE CASCADE;
