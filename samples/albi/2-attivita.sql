-- Dati professionali: la riga con dettaglio 0 è il titolo del suo gruppo.
CREATE TABLE tb_altri_dati (
  tipo TEXT(2) NOT NULL,
  cd_base LONG NOT NULL,
  cd_dettaglio LONG NOT NULL,
  descr TEXT(80),
  CONSTRAINT PrimaryKey PRIMARY KEY (tipo, cd_base, cd_dettaglio));

CREATE TABLE altri_dati (
  cd_matr LONG NOT NULL,
  tipo TEXT(2) NOT NULL,
  cd_base LONG NOT NULL,
  cd_dettaglio LONG NOT NULL,
  ds_note TEXT(120),
  CONSTRAINT PrimaryKey PRIMARY KEY (cd_matr, tipo, cd_base, cd_dettaglio));

-- Sezioni e settori degli albi; AppName dice di quale.
CREATE TABLE tb_Settori (
  AppName TEXT(20) NOT NULL,
  Sezione TEXT(5) NOT NULL,
  Settore TEXT(5) NOT NULL,
  Titolo TEXT(60),
  Descrizione TEXT(255),
  CONSTRAINT PrimaryKey PRIMARY KEY (AppName, Sezione, Settore));

CREATE TABLE Settori_Rag (
  cd_matr LONG NOT NULL,
  Sezione TEXT(5) NOT NULL,
  Settore TEXT(5) NOT NULL,
  DataIscr DATETIME,
  fl_old_ordinamento YESNO,
  ProgressivoTS LONG DEFAULT 0,
  CONSTRAINT PrimaryKey PRIMARY KEY (cd_matr, Sezione, Settore));

-- Gli altri albi a cui un iscritto può appartenere.
CREATE TABLE altri_norvi (
  norvo LONG CONSTRAINT PrimaryKey PRIMARY KEY,
  ds_norvo TEXT(80) NOT NULL);

ALTER TABLE altri_dati ADD CONSTRAINT tb_altri_dati_altri_dati
  FOREIGN KEY (tipo, cd_base, cd_dettaglio) REFERENCES tb_altri_dati (tipo, cd_base, cd_dettaglio) ON UPDATE CASCADE;
ALTER TABLE altri_dati ADD CONSTRAINT ragioniere_altri_dati
  FOREIGN KEY (cd_matr) REFERENCES ragioniere (cd_matr) ON UPDATE CASCADE ON DELETE CASCADE;
ALTER TABLE Settori_Rag ADD CONSTRAINT ragioniere_settori
  FOREIGN KEY (cd_matr) REFERENCES ragioniere (cd_matr) ON UPDATE CASCADE ON DELETE CASCADE;

INSERT INTO tb_Settori VALUES ('ordcommec', 'A', '-', 'Dottori commercialisti', 'Laurea magistrale ed esame di Stato');
INSERT INTO tb_Settori VALUES ('ordcommec', 'B', '-', 'Esperti contabili', 'Laurea triennale ed esame di Stato');
INSERT INTO tb_Settori VALUES ('ordcommec', 'E', '-', 'Elenco speciale', 'Chi non esercita la professione');
INSERT INTO tb_Settori VALUES ('ordgeologi', 'A', '-', 'Geologi', NULL);
INSERT INTO tb_Settori VALUES ('ordgeologi', 'B', '-', 'Geologi iunior', NULL);
INSERT INTO tb_Settori VALUES ('ordingegneri', 'A', 'a', 'civile e ambientale', NULL);
INSERT INTO tb_Settori VALUES ('ordingegneri', 'A', 'b', 'industriale', NULL);
INSERT INTO tb_Settori VALUES ('ordingegneri', 'A', 'c', 'dell''informazione', NULL);
INSERT INTO tb_Settori VALUES ('ordingegneri', 'B', 'a', 'civile e ambientale', 'Ingegnere iunior');
INSERT INTO tb_Settori VALUES ('ordingegneri', 'B', 'b', 'industriale', 'Ingegnere iunior');
INSERT INTO tb_Settori VALUES ('ordingegneri', 'B', 'c', 'dell''informazione', 'Ingegnere iunior');
INSERT INTO tb_Settori VALUES ('ordarchitetti', 'A', 'a', 'Architettura', NULL);
INSERT INTO tb_Settori VALUES ('ordarchitetti', 'A', 'b', 'Pianificazione territoriale', NULL);
INSERT INTO tb_Settori VALUES ('ordarchitetti', 'A', 'c', 'Paesaggistica', NULL);
INSERT INTO tb_Settori VALUES ('ordarchitetti', 'A', 'd', 'Conservazione', NULL);
INSERT INTO tb_Settori VALUES ('ordarchitetti', 'B', 'a', 'Architettura iunior', NULL);
INSERT INTO tb_Settori VALUES ('ordarchitetti', 'B', 'b', 'Pianificazione iunior', NULL);
INSERT INTO tb_Settori VALUES ('ordgiornalisti', 'P', '-', 'Professionisti', '<Sezione>P</Sezione>');
INSERT INTO tb_Settori VALUES ('ordgiornalisti', 'U', '-', 'Pubblicisti', '<Sezione>U</Sezione>');

INSERT INTO altri_norvi VALUES (1, 'Avvocati');
INSERT INTO altri_norvi VALUES (2, 'Consulenti del lavoro');
INSERT INTO altri_norvi VALUES (3, 'Geometri');
INSERT INTO altri_norvi VALUES (4, 'Giornalisti');
INSERT INTO altri_norvi VALUES (5, 'Ingegneri');
INSERT INTO altri_norvi VALUES (6, 'Mediatori');
INSERT INTO altri_norvi VALUES (7, 'Periti industriali');
INSERT INTO altri_norvi VALUES (8, 'Revisori legali');
