-- Medici: albo degli odontoiatri e specialità.
ALTER TABLE ragioniere ADD COLUMN fl_odontoiatra YESNO;
CREATE TABLE specialita_rag (
  cd_matr LONG NOT NULL,
  Progressivo SHORT NOT NULL,
  ds_specialita TEXT(80),
  dt_conseguimento DATETIME,
  CONSTRAINT PrimaryKey PRIMARY KEY (cd_matr, Progressivo));
ALTER TABLE specialita_rag ADD CONSTRAINT ragioniere_specialita
  FOREIGN KEY (cd_matr) REFERENCES ragioniere (cd_matr) ON UPDATE CASCADE ON DELETE CASCADE;
