-- Copia degli iscritti che il sito pubblica, per le installazioni che lo usano.
CREATE TABLE DataWebAnagrafica (
  cd_matr LONG CONSTRAINT PrimaryKey PRIMARY KEY,
  Nominativo TEXT(101) NOT NULL,
  Citta TEXT(60),
  ds_reg_cert_energetico TEXT(40),
  DataInvio DATETIME,
  ds_reg_cert_acustico TEXT(40),
  ds_internet TEXT(80),
  ds_legalmail TEXT(80));
CREATE INDEX Nominativo ON DataWebAnagrafica (Nominativo);

CREATE TABLE DataWebIndirizzo (
  cd_matr LONG NOT NULL,
  Progressivo SHORT NOT NULL,
  Tipo TEXT(1) NOT NULL DEFAULT 'S',
  Indirizzo TEXT(80),
  CAP TEXT(5),
  Comune TEXT(60),
  Provincia TEXT(2),
  Telefono TEXT(20),
  Fax TEXT(20),
  CONSTRAINT PrimaryKey PRIMARY KEY (cd_matr, Progressivo));

CREATE TABLE DataWebTitoloStudio (
  cd_matr LONG NOT NULL,
  Progressivo SHORT NOT NULL,
  Titolo TEXT(100),
  Anno SHORT,
  CONSTRAINT PrimaryKey PRIMARY KEY (cd_matr, Progressivo));

CREATE TABLE DataWebAltriDati (
  cd_matr LONG NOT NULL,
  Progressivo SHORT NOT NULL,
  Descrizione TEXT(120),
  [Note] MEMO,
  CONSTRAINT PrimaryKey PRIMARY KEY (cd_matr, Progressivo));

CREATE TABLE DataWebFoto (
  cd_matr LONG CONSTRAINT PrimaryKey PRIMARY KEY,
  Foto LONGBINARY,
  DataFoto DATETIME);

CREATE TABLE DataWebPrivacy (
  cd_matr LONG CONSTRAINT PrimaryKey PRIMARY KEY,
  aut_res YESNO DEFAULT True,
  aut_studio YESNO DEFAULT True,
  aut_tel YESNO,
  aut_email YESNO);

ALTER TABLE DataWebIndirizzo ADD CONSTRAINT DataWebAnagrafica_Indirizzo
  FOREIGN KEY (cd_matr) REFERENCES DataWebAnagrafica (cd_matr) ON UPDATE CASCADE ON DELETE CASCADE;
ALTER TABLE DataWebTitoloStudio ADD CONSTRAINT DataWebAnagrafica_TitoloStudio
  FOREIGN KEY (cd_matr) REFERENCES DataWebAnagrafica (cd_matr) ON UPDATE CASCADE ON DELETE CASCADE;
ALTER TABLE DataWebAltriDati ADD CONSTRAINT DataWebAnagrafica_AltriDati
  FOREIGN KEY (cd_matr) REFERENCES DataWebAnagrafica (cd_matr) ON UPDATE CASCADE ON DELETE CASCADE;
ALTER TABLE DataWebFoto ADD CONSTRAINT DataWebAnagrafica_Foto
  FOREIGN KEY (cd_matr) REFERENCES DataWebAnagrafica (cd_matr) ON UPDATE CASCADE ON DELETE CASCADE;
ALTER TABLE DataWebPrivacy ADD CONSTRAINT DataWebAnagrafica_Privacy
  FOREIGN KEY (cd_matr) REFERENCES DataWebAnagrafica (cd_matr) ON UPDATE CASCADE ON DELETE CASCADE;
