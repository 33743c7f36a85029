-- La posta certificata: messaggi e allegati.
CREATE TABLE pec_messaggi (
  cd_messaggio COUNTER CONSTRAINT PrimaryKey PRIMARY KEY,
  ds_mittente TEXT(120),
  ds_destinatario TEXT(120),
  ds_oggetto TEXT(255),
  dt_invio DATETIME,
  anno SHORT,
  id_prot LONG,
  ds_testo MEMO);
CREATE INDEX Protocollo ON pec_messaggi (anno, id_prot) WITH IGNORE NULL;

CREATE TABLE pec_allegati (
  cd_messaggio LONG NOT NULL,
  Progressivo SHORT NOT NULL,
  ds_file TEXT(255),
  Contenuto LONGBINARY,
  CONSTRAINT PrimaryKey PRIMARY KEY (cd_messaggio, Progressivo));
ALTER TABLE pec_allegati ADD CONSTRAINT pec_messaggi_allegati
  FOREIGN KEY (cd_messaggio) REFERENCES pec_messaggi (cd_messaggio) ON DELETE CASCADE;
