-- Consulenti del lavoro: deleghe dei clienti.
CREATE TABLE tb_deleghe (
  cd_matr LONG NOT NULL,
  cd_fiscale_cliente TEXT(16) NOT NULL,
  dt_inizio DATETIME,
  dt_fine DATETIME,
  CONSTRAINT PrimaryKey PRIMARY KEY (cd_matr, cd_fiscale_cliente));
ALTER TABLE tb_deleghe ADD CONSTRAINT ragioniere_deleghe
  FOREIGN KEY (cd_matr) REFERENCES ragioniere (cd_matr) ON UPDATE CASCADE ON DELETE CASCADE;
