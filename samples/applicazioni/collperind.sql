-- Periti industriali: abilitazioni alla sicurezza dei cantieri, sessioni d'esame, specializzazione.
ALTER TABLE ragioniere ADD COLUMN [legge494/96] YESNO;
ALTER TABLE ragioniere ADD COLUMN [fl_legge81/08] YESNO;
ALTER TABLE ragioniere ADD COLUMN ds_specializzazione TEXT(60);
ALTER TABLE ragioniere ADD COLUMN ds_sessione_esame TEXT(10);

CREATE TABLE Esame (
  codice_esame LONG CONSTRAINT PrimaryKey PRIMARY KEY,
  tipo_esame TEXT(60));
