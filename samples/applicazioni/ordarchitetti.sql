-- Architetti: abilitazioni alla sicurezza dei cantieri, cognome senza accenti per la ricerca, altri dati.
ALTER TABLE ragioniere ADD COLUMN [legge494/96] YESNO;
ALTER TABLE ragioniere ADD COLUMN [fl_legge81/08] YESNO;
ALTER TABLE ragioniere ADD COLUMN ds_cognome_ric TEXT(50);
CREATE INDEX CognomeRicerca ON ragioniere (ds_cognome_ric);

CREATE TABLE altri_dati2 (
  cd_matr LONG NOT NULL,
  tipo TEXT(2) NOT NULL,
  cd_base LONG NOT NULL,
  cd_dettaglio LONG NOT NULL,
  ds_note TEXT(120),
  CONSTRAINT PrimaryKey PRIMARY KEY (cd_matr, tipo, cd_base, cd_dettaglio));
ALTER TABLE altri_dati2 ADD CONSTRAINT ragioniere_altri_dati2
  FOREIGN KEY (cd_matr) REFERENCES ragioniere (cd_matr) ON UPDATE CASCADE ON DELETE CASCADE;
