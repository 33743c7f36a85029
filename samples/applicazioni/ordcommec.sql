-- Commercialisti: consulenti tecnici del tribunale e revisori.
ALTER TABLE ragioniere ADD COLUMN fl_ctu YESNO;
ALTER TABLE ragioniere ADD COLUMN nr_ctu LONG DEFAULT 0;
ALTER TABLE ragioniere ADD COLUMN ds_registro_revisori TEXT(60);

CREATE TABLE tb_incarichi (
  cd_incarico COUNTER CONSTRAINT PrimaryKey PRIMARY KEY,
  cd_matr LONG NOT NULL,
  ds_incarico TEXT(100),
  cd_ente LONG,
  dt_inizio DATETIME,
  dt_fine DATETIME,
  ip_compensoEuro CURRENCY DEFAULT 0);
CREATE INDEX Iscritto ON tb_incarichi (cd_matr, dt_inizio);
ALTER TABLE tb_incarichi ADD CONSTRAINT ragioniere_incarichi
  FOREIGN KEY (cd_matr) REFERENCES ragioniere (cd_matr) ON UPDATE CASCADE ON DELETE CASCADE;
ALTER TABLE tb_incarichi ADD CONSTRAINT enti_incarichi FOREIGN KEY (cd_ente) REFERENCES enti (cd_ente);
