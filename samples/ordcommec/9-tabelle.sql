-- Dati professionali, sezioni, titoli di studio, stampe e tabelle temporanee.
CREATE TABLE tb_altri_dati (
  tipo TEXT(2) NOT NULL,
  cd_base LONG NOT NULL,
  cd_dettaglio LONG NOT NULL,
  descr TEXT(60),
  CONSTRAINT PrimaryKey PRIMARY KEY (tipo, cd_base, cd_dettaglio));

INSERT INTO tb_altri_dati VALUES ('DP', 1, 0, 'Tribunale');
INSERT INTO tb_altri_dati VALUES ('DP', 1, 1, 'curatore fallimentare');
INSERT INTO tb_altri_dati VALUES ('DP', 1, 2, 'consulente tecnico');
INSERT INTO tb_altri_dati VALUES ('DP', 2, 0, 'Revisione');
INSERT INTO tb_altri_dati VALUES ('DP', 2, 1, 'enti locali');
INSERT INTO tb_altri_dati VALUES ('DP', 2, 2, 'società');

CREATE TABLE altri_dati (
  cd_matr LONG NOT NULL,
  tipo TEXT(2) NOT NULL,
  cd_base LONG NOT NULL,
  cd_dettaglio LONG NOT NULL,
  ds_note TEXT(60));
CREATE INDEX PrimaryKey ON altri_dati (cd_matr, cd_base, cd_dettaglio, tipo) WITH PRIMARY;

INSERT INTO altri_dati VALUES (2, 'DP', 2, 1, NULL);
INSERT INTO altri_dati VALUES (8, 'DP', 1, 1, NULL);
INSERT INTO altri_dati VALUES (8, 'DP', 2, 1, NULL);
INSERT INTO altri_dati VALUES (12, 'DP', 1, 1, NULL);
INSERT INTO altri_dati VALUES (12, 'DP', 1, 2, NULL);
INSERT INTO altri_dati VALUES (23, 'DP', 1, 2, NULL);
INSERT INTO altri_dati VALUES (48, 'DP', 1, 2, NULL);
INSERT INTO altri_dati VALUES (48, 'DP', 2, 1, NULL);
INSERT INTO altri_dati VALUES (49, 'DP', 1, 2, NULL);
INSERT INTO altri_dati VALUES (53, 'DP', 1, 2, NULL);
INSERT INTO altri_dati VALUES (53, 'DP', 2, 1, NULL);
INSERT INTO altri_dati VALUES (55, 'DP', 1, 1, NULL);
INSERT INTO altri_dati VALUES (56, 'DP', 2, 1, NULL);
INSERT INTO altri_dati VALUES (62, 'DP', 2, 2, NULL);
INSERT INTO altri_dati VALUES (64, 'DP', 2, 2, NULL);
INSERT INTO altri_dati VALUES (70, 'DP', 2, 1, NULL);
INSERT INTO altri_dati VALUES (72, 'DP', 2, 2, NULL);
INSERT INTO altri_dati VALUES (78, 'DP', 2, 2, NULL);
INSERT INTO altri_dati VALUES (87, 'DP', 1, 2, NULL);
INSERT INTO altri_dati VALUES (90, 'DP', 1, 1, NULL);
INSERT INTO altri_dati VALUES (91, 'DP', 1, 1, NULL);
INSERT INTO altri_dati VALUES (92, 'DP', 2, 1, NULL);
INSERT INTO altri_dati VALUES (92, 'DP', 2, 2, NULL);
INSERT INTO altri_dati VALUES (103, 'DP', 1, 2, NULL);
INSERT INTO altri_dati VALUES (104, 'DP', 2, 2, NULL);
INSERT INTO altri_dati VALUES (105, 'DP', 1, 2, NULL);
INSERT INTO altri_dati VALUES (114, 'DP', 1, 1, NULL);
INSERT INTO altri_dati VALUES (114, 'DP', 2, 2, NULL);
INSERT INTO altri_dati VALUES (125, 'DP', 1, 1, NULL);
INSERT INTO altri_dati VALUES (125, 'DP', 1, 2, NULL);
INSERT INTO altri_dati VALUES (126, 'DP', 1, 2, NULL);
INSERT INTO altri_dati VALUES (130, 'DP', 1, 1, NULL);
INSERT INTO altri_dati VALUES (130, 'DP', 1, 2, NULL);
INSERT INTO altri_dati VALUES (131, 'DP', 1, 1, NULL);
INSERT INTO altri_dati VALUES (131, 'DP', 2, 2, NULL);
INSERT INTO altri_dati VALUES (144, 'DP', 1, 2, NULL);
INSERT INTO altri_dati VALUES (158, 'DP', 2, 1, NULL);
INSERT INTO altri_dati VALUES (166, 'DP', 1, 2, NULL);
INSERT INTO altri_dati VALUES (170, 'DP', 1, 2, NULL);

CREATE TABLE tb_Settori (
  AppName TEXT(20) NOT NULL,
  Sezione TEXT(2) NOT NULL,
  Settore TEXT(2) NOT NULL,
  Titolo TEXT(40),
  CONSTRAINT PrimaryKey PRIMARY KEY (AppName, Sezione, Settore));

INSERT INTO tb_Settori VALUES ('ordcommec', 'A', '-', 'Ragionieri commercialisti');
INSERT INTO tb_Settori VALUES ('ordcommec', 'X', '-', 'Sezione soppressa');

CREATE TABLE Settori_Rag (
  cd_matr LONG NOT NULL,
  Sezione TEXT(2) NOT NULL,
  Settore TEXT(2) NOT NULL,
  DataIscr DATETIME,
  fl_old_ordinamento YESNO,
  CONSTRAINT PrimaryKey PRIMARY KEY (cd_matr, Sezione, Settore));

INSERT INTO Settori_Rag VALUES (1, 'A', '-', #10/23/1975#, TRUE);
INSERT INTO Settori_Rag VALUES (2, 'A', '-', #07/02/1999#, FALSE);
INSERT INTO Settori_Rag VALUES (3, 'A', '-', #06/24/1990#, TRUE);
INSERT INTO Settori_Rag VALUES (4, 'A', '-', #08/30/1993#, TRUE);
INSERT INTO Settori_Rag VALUES (5, 'A', '-', #10/10/2001#, FALSE);
INSERT INTO Settori_Rag VALUES (6, 'A', '-', #11/03/2002#, FALSE);
INSERT INTO Settori_Rag VALUES (7, 'A', '-', #10/31/1990#, TRUE);
INSERT INTO Settori_Rag VALUES (8, 'A', '-', #08/29/2001#, FALSE);
INSERT INTO Settori_Rag VALUES (9, 'A', '-', #11/06/2003#, FALSE);
INSERT INTO Settori_Rag VALUES (10, 'A', '-', #12/20/1990#, TRUE);
INSERT INTO Settori_Rag VALUES (11, 'A', '-', #09/03/2002#, FALSE);
INSERT INTO Settori_Rag VALUES (12, 'A', '-', #09/18/1982#, TRUE);
INSERT INTO Settori_Rag VALUES (13, 'A', '-', #12/20/2001#, FALSE);
INSERT INTO Settori_Rag VALUES (14, 'A', '-', #07/30/1981#, TRUE);
INSERT INTO Settori_Rag VALUES (15, 'A', '-', #11/22/2003#, FALSE);
INSERT INTO Settori_Rag VALUES (16, 'A', '-', #10/12/1992#, TRUE);
INSERT INTO Settori_Rag VALUES (17, 'A', '-', #03/19/1984#, TRUE);
INSERT INTO Settori_Rag VALUES (18, 'A', '-', #05/04/2003#, FALSE);
INSERT INTO Settori_Rag VALUES (19, 'A', '-', #04/21/1993#, TRUE);
INSERT INTO Settori_Rag VALUES (20, 'A', '-', #09/16/1980#, TRUE);
INSERT INTO Settori_Rag VALUES (21, 'A', '-', #05/22/1983#, TRUE);
INSERT INTO Settori_Rag VALUES (22, 'A', '-', #12/27/2004#, FALSE);
INSERT INTO Settori_Rag VALUES (23, 'A', '-', #05/08/2001#, FALSE);
INSERT INTO Settori_Rag VALUES (24, 'A', '-', #04/21/2005#, FALSE);
INSERT INTO Settori_Rag VALUES (25, 'A', '-', #03/26/1967#, TRUE);
INSERT INTO Settori_Rag VALUES (26, 'A', '-', #10/03/1985#, TRUE);
INSERT INTO Settori_Rag VALUES (27, 'A', '-', #09/01/2004#, FALSE);
INSERT INTO Settori_Rag VALUES (28, 'A', '-', #11/28/1997#, FALSE);
INSERT INTO Settori_Rag VALUES (29, 'A', '-', #11/13/1985#, TRUE);
INSERT INTO Settori_Rag VALUES (30, 'A', '-', #11/19/1986#, TRUE);
INSERT INTO Settori_Rag VALUES (31, 'A', '-', #06/12/1996#, FALSE);
INSERT INTO Settori_Rag VALUES (32, 'A', '-', #03/03/2003#, FALSE);
INSERT INTO Settori_Rag VALUES (33, 'A', '-', #07/05/2001#, FALSE);
INSERT INTO Settori_Rag VALUES (35, 'A', '-', #01/11/2005#, FALSE);
INSERT INTO Settori_Rag VALUES (36, 'A', '-', #02/07/1975#, TRUE);
INSERT INTO Settori_Rag VALUES (38, 'A', '-', #06/17/1969#, TRUE);
INSERT INTO Settori_Rag VALUES (39, 'A', '-', #12/22/1983#, TRUE);
INSERT INTO Settori_Rag VALUES (40, 'A', '-', #05/18/1999#, FALSE);
INSERT INTO Settori_Rag VALUES (41, 'A', '-', #08/06/2001#, FALSE);
INSERT INTO Settori_Rag VALUES (42, 'A', '-', #02/26/1965#, TRUE);
INSERT INTO Settori_Rag VALUES (43, 'A', '-', #03/05/1985#, TRUE);
INSERT INTO Settori_Rag VALUES (44, 'A', '-', #04/04/1981#, TRUE);
INSERT INTO Settori_Rag VALUES (45, 'A', '-', #05/24/1992#, TRUE);
INSERT INTO Settori_Rag VALUES (46, 'A', '-', #12/19/1979#, TRUE);
INSERT INTO Settori_Rag VALUES (47, 'A', '-', #08/17/1994#, FALSE);
INSERT INTO Settori_Rag VALUES (48, 'A', '-', #02/13/2001#, FALSE);
INSERT INTO Settori_Rag VALUES (49, 'A', '-', #12/07/1979#, TRUE);
INSERT INTO Settori_Rag VALUES (50, 'A', '-', #12/31/2002#, FALSE);
INSERT INTO Settori_Rag VALUES (52, 'A', '-', #09/11/2004#, FALSE);
INSERT INTO Settori_Rag VALUES (53, 'A', '-', #03/23/1985#, TRUE);
INSERT INTO Settori_Rag VALUES (54, 'A', '-', #07/14/1996#, FALSE);
INSERT INTO Settori_Rag VALUES (55, 'A', '-', #02/26/1995#, FALSE);
INSERT INTO Settori_Rag VALUES (56, 'A', '-', #09/20/1975#, TRUE);
INSERT INTO Settori_Rag VALUES (57, 'A', '-', #01/23/1987#, TRUE);
INSERT INTO Settori_Rag VALUES (58, 'A', '-', #12/21/1991#, TRUE);
INSERT INTO Settori_Rag VALUES (59, 'A', '-', #07/06/1980#, TRUE);
INSERT INTO Settori_Rag VALUES (61, 'A', '-', #04/16/1999#, FALSE);
INSERT INTO Settori_Rag VALUES (62, 'A', '-', #06/02/2003#, FALSE);
INSERT INTO Settori_Rag VALUES (63, 'A', '-', #04/16/1994#, FALSE);
INSERT INTO Settori_Rag VALUES (64, 'A', '-', #12/02/2001#, FALSE);
INSERT INTO Settori_Rag VALUES (65, 'A', '-', #09/28/1984#, TRUE);
INSERT INTO Settori_Rag VALUES (66, 'A', '-', #01/16/2005#, FALSE);
INSERT INTO Settori_Rag VALUES (67, 'A', '-', #10/21/2004#, FALSE);
INSERT INTO Settori_Rag VALUES (68, 'A', '-', #10/21/2004#, FALSE);
INSERT INTO Settori_Rag VALUES (69, 'A', '-', #09/24/2000#, FALSE);
INSERT INTO Settori_Rag VALUES (70, 'A', '-', #06/12/2004#, FALSE);
INSERT INTO Settori_Rag VALUES (71, 'A', '-', #01/09/1996#, FALSE);
INSERT INTO Settori_Rag VALUES (72, 'A', '-', #06/03/1981#, TRUE);
INSERT INTO Settori_Rag VALUES (73, 'A', '-', #11/03/1994#, FALSE);
INSERT INTO Settori_Rag VALUES (74, 'A', '-', #06/06/1998#, FALSE);
INSERT INTO Settori_Rag VALUES (75, 'A', '-', #01/10/1986#, TRUE);
INSERT INTO Settori_Rag VALUES (76, 'A', '-', #06/12/2000#, FALSE);
INSERT INTO Settori_Rag VALUES (77, 'A', '-', #07/27/1995#, FALSE);
INSERT INTO Settori_Rag VALUES (78, 'A', '-', #10/22/2002#, FALSE);
INSERT INTO Settori_Rag VALUES (79, 'A', '-', #07/08/1997#, FALSE);
INSERT INTO Settori_Rag VALUES (80, 'A', '-', #12/17/1982#, TRUE);
INSERT INTO Settori_Rag VALUES (82, 'A', '-', #01/23/1987#, TRUE);
INSERT INTO Settori_Rag VALUES (83, 'A', '-', #12/19/1994#, FALSE);
INSERT INTO Settori_Rag VALUES (84, 'A', '-', #11/24/1989#, TRUE);
INSERT INTO Settori_Rag VALUES (85, 'A', '-', #10/27/1997#, FALSE);
INSERT INTO Settori_Rag VALUES (86, 'A', '-', #07/21/1998#, FALSE);
INSERT INTO Settori_Rag VALUES (87, 'A', '-', #01/28/2000#, FALSE);
INSERT INTO Settori_Rag VALUES (88, 'A', '-', #09/28/1966#, TRUE);
INSERT INTO Settori_Rag VALUES (89, 'A', '-', #06/10/1997#, FALSE);
INSERT INTO Settori_Rag VALUES (90, 'A', '-', #04/10/1982#, TRUE);
INSERT INTO Settori_Rag VALUES (91, 'A', '-', #10/08/1994#, FALSE);
INSERT INTO Settori_Rag VALUES (92, 'A', '-', #05/10/1998#, FALSE);
INSERT INTO Settori_Rag VALUES (93, 'A', '-', #12/19/1998#, FALSE);
INSERT INTO Settori_Rag VALUES (94, 'A', '-', #08/22/2001#, FALSE);
INSERT INTO Settori_Rag VALUES (95, 'A', '-', #04/07/1999#, FALSE);

CREATE TABLE altri_norvi (
  norvo LONG CONSTRAINT PrimaryKey PRIMARY KEY,
  ds_norvo TEXT(40) NOT NULL);

INSERT INTO altri_norvi VALUES (1, 'Procuratori legali');
INSERT INTO altri_norvi VALUES (20, 'Albo provvisorio');

CREATE TABLE titolo_studio_rag (
  cd_matr LONG NOT NULL,
  Progressivo LONG NOT NULL,
  ds_titolo TEXT(60),
  ds_istituto TEXT(60),
  dt_conseguimento DATETIME,
  CONSTRAINT PrimaryKey PRIMARY KEY (cd_matr, Progressivo));

INSERT INTO titolo_studio_rag VALUES (1, 1, 'Laurea in economia e commercio', 'Università di Bologna', #12/23/1971#);
INSERT INTO titolo_studio_rag VALUES (2, 1, 'Laurea in economia e commercio', 'Università di Bologna', #09/01/1995#);
INSERT INTO titolo_studio_rag VALUES (3, 1, 'Diploma di ragioniere', 'Università di Bologna', #08/24/1986#);
INSERT INTO titolo_studio_rag VALUES (4, 1, 'Laurea in economia e commercio', 'Università di Bologna', #10/30/1989#);
INSERT INTO titolo_studio_rag VALUES (5, 1, 'Laurea in economia e commercio', 'Università di Bologna', #12/10/1997#);
INSERT INTO titolo_studio_rag VALUES (6, 1, 'Diploma di ragioniere', 'Università di Bologna', #01/03/1999#);
INSERT INTO titolo_studio_rag VALUES (7, 1, 'Laurea in economia e commercio', 'Università di Bologna', #12/31/1986#);
INSERT INTO titolo_studio_rag VALUES (8, 1, 'Laurea in economia e commercio', 'Università di Bologna', #10/29/1997#);
INSERT INTO titolo_studio_rag VALUES (9, 1, 'Diploma di ragioniere', 'Università di Bologna', #01/06/2000#);
INSERT INTO titolo_studio_rag VALUES (10, 1, 'Laurea in economia e commercio', 'Università di Bologna', #02/19/1987#);
INSERT INTO titolo_studio_rag VALUES (10, 2, 'Master in diritto tributario', 'Università di Urbino', NULL);
INSERT INTO titolo_studio_rag VALUES (11, 1, 'Laurea in economia e commercio', 'Università di Bologna', #11/03/1998#);
INSERT INTO titolo_studio_rag VALUES (12, 1, 'Diploma di ragioniere', 'Università di Bologna', #11/18/1978#);
INSERT INTO titolo_studio_rag VALUES (13, 1, 'Laurea in economia e commercio', 'Università di Bologna', #02/19/1998#);
INSERT INTO titolo_studio_rag VALUES (14, 1, 'Laurea in economia e commercio', 'Università di Bologna', #09/29/1977#);
INSERT INTO titolo_studio_rag VALUES (15, 1, 'Diploma di ragioniere', 'Università di Bologna', #01/22/2000#);
INSERT INTO titolo_studio_rag VALUES (16, 1, 'Laurea in economia e commercio', 'Università di Bologna', #12/12/1988#);
INSERT INTO titolo_studio_rag VALUES (17, 1, 'Laurea in economia e commercio', 'Università di Bologna', #05/19/1980#);
INSERT INTO titolo_studio_rag VALUES (18, 1, 'Diploma di ragioniere', 'Università di Bologna', #07/04/1999#);
INSERT INTO titolo_studio_rag VALUES (19, 1, 'Laurea in economia e commercio', 'Università di Bologna', #06/21/1989#);
INSERT INTO titolo_studio_rag VALUES (20, 1, 'Laurea in economia e commercio', 'Università di Bologna', #11/16/1976#);
INSERT INTO titolo_studio_rag VALUES (20, 2, 'Master in diritto tributario', 'Università di Urbino', NULL);
INSERT INTO titolo_studio_rag VALUES (21, 1, 'Diploma di ragioniere', 'Università di Bologna', #07/22/1979#);
INSERT INTO titolo_studio_rag VALUES (22, 1, 'Laurea in economia e commercio', 'Università di Bologna', #02/26/2001#);
INSERT INTO titolo_studio_rag VALUES (23, 1, 'Laurea in economia e commercio', 'Università di Bologna', #07/08/1997#);
INSERT INTO titolo_studio_rag VALUES (24, 1, 'Diploma di ragioniere', 'Università di Bologna', #06/21/2001#);
INSERT INTO titolo_studio_rag VALUES (25, 1, 'Laurea in economia e commercio', 'Università di Bologna', #05/26/1963#);
INSERT INTO titolo_studio_rag VALUES (26, 1, 'Laurea in economia e commercio', 'Università di Bologna', #12/03/1981#);
INSERT INTO titolo_studio_rag VALUES (27, 1, 'Diploma di ragioniere', 'Università di Bologna', #11/01/2000#);
INSERT INTO titolo_studio_rag VALUES (28, 1, 'Laurea in economia e commercio', 'Università di Bologna', #01/28/1994#);
INSERT INTO titolo_studio_rag VALUES (29, 1, 'Laurea in economia e commercio', 'Università di Bologna', #01/13/1982#);
INSERT INTO titolo_studio_rag VALUES (30, 1, 'Diploma di ragioniere', 'Università di Bologna', #01/19/1983#);
INSERT INTO titolo_studio_rag VALUES (30, 2, 'Master in diritto tributario', 'Università di Urbino', NULL);
INSERT INTO titolo_studio_rag VALUES (31, 1, 'Laurea in economia e commercio', 'Università di Bologna', #08/12/1992#);
INSERT INTO titolo_studio_rag VALUES (32, 1, 'Laurea in economia e commercio', 'Università di Bologna', #05/03/1999#);
INSERT INTO titolo_studio_rag VALUES (33, 1, 'Diploma di ragioniere', 'Università di Bologna', #09/04/1997#);
INSERT INTO titolo_studio_rag VALUES (34, 1, 'Laurea in economia e commercio', 'Università di Bologna', #07/14/2001#);
INSERT INTO titolo_studio_rag VALUES (35, 1, 'Laurea in economia e commercio', 'Università di Bologna', #03/13/2001#);
INSERT INTO titolo_studio_rag VALUES (36, 1, 'Diploma di ragioniere', 'Università di Bologna', #04/09/1971#);
INSERT INTO titolo_studio_rag VALUES (37, 1, 'Laurea in economia e commercio', 'Università di Bologna', #11/30/1997#);
INSERT INTO titolo_studio_rag VALUES (38, 1, 'Laurea in economia e commercio', 'Università di Bologna', #08/17/1965#);
INSERT INTO titolo_studio_rag VALUES (39, 1, 'Diploma di ragioniere', 'Università di Bologna', #02/21/1980#);
INSERT INTO titolo_studio_rag VALUES (40, 1, 'Laurea in economia e commercio', 'Università di Bologna', #07/18/1995#);
INSERT INTO titolo_studio_rag VALUES (40, 2, 'Master in diritto tributario', 'Università di Urbino', NULL);
INSERT INTO titolo_studio_rag VALUES (41, 1, 'Laurea in economia e commercio', 'Università di Bologna', #10/06/1997#);
INSERT INTO titolo_studio_rag VALUES (42, 1, 'Diploma di ragioniere', 'Università di Bologna', #04/28/1961#);
INSERT INTO titolo_studio_rag VALUES (43, 1, 'Laurea in economia e commercio', 'Università di Bologna', #05/05/1981#);
INSERT INTO titolo_studio_rag VALUES (44, 1, 'Laurea in economia e commercio', 'Università di Bologna', #06/04/1977#);
INSERT INTO titolo_studio_rag VALUES (45, 1, 'Diploma di ragioniere', 'Università di Bologna', #07/24/1988#);
INSERT INTO titolo_studio_rag VALUES (46, 1, 'Laurea in economia e commercio', 'Università di Bologna', #02/18/1976#);
INSERT INTO titolo_studio_rag VALUES (47, 1, 'Laurea in economia e commercio', 'Università di Bologna', #10/17/1990#);
INSERT INTO titolo_studio_rag VALUES (48, 1, 'Diploma di ragioniere', 'Università di Bologna', #04/15/1997#);
INSERT INTO titolo_studio_rag VALUES (49, 1, 'Laurea in economia e commercio', 'Università di Bologna', #02/06/1976#);
INSERT INTO titolo_studio_rag VALUES (50, 1, 'Laurea in economia e commercio', 'Università di Bologna', #03/02/1999#);
INSERT INTO titolo_studio_rag VALUES (50, 2, 'Master in diritto tributario', 'Università di Urbino', NULL);
INSERT INTO titolo_studio_rag VALUES (51, 1, 'Diploma di ragioniere', 'Università di Bologna', #11/01/1995#);
INSERT INTO titolo_studio_rag VALUES (52, 1, 'Laurea in economia e commercio', 'Università di Bologna', #11/11/2000#);
INSERT INTO titolo_studio_rag VALUES (53, 1, 'Laurea in economia e commercio', 'Università di Bologna', #05/23/1981#);
INSERT INTO titolo_studio_rag VALUES (54, 1, 'Diploma di ragioniere', 'Università di Bologna', #09/13/1992#);
INSERT INTO titolo_studio_rag VALUES (55, 1, 'Laurea in economia e commercio', 'Università di Bologna', #04/28/1991#);
INSERT INTO titolo_studio_rag VALUES (56, 1, 'Laurea in economia e commercio', 'Università di Bologna', #11/20/1971#);
INSERT INTO titolo_studio_rag VALUES (57, 1, 'Diploma di ragioniere', 'Università di Bologna', #03/25/1983#);
INSERT INTO titolo_studio_rag VALUES (58, 1, 'Laurea in economia e commercio', 'Università di Bologna', #02/20/1988#);
INSERT INTO titolo_studio_rag VALUES (59, 1, 'Laurea in economia e commercio', 'Università di Bologna', #09/05/1976#);
INSERT INTO titolo_studio_rag VALUES (60, 1, 'Diploma di ragioniere', 'Università di Bologna', #03/05/1980#);
INSERT INTO titolo_studio_rag VALUES (60, 2, 'Master in diritto tributario', 'Università di Urbino', NULL);
INSERT INTO titolo_studio_rag VALUES (61, 1, 'Laurea in economia e commercio', 'Università di Bologna', #06/16/1995#);
INSERT INTO titolo_studio_rag VALUES (62, 1, 'Laurea in economia e commercio', 'Università di Bologna', #08/02/1999#);
INSERT INTO titolo_studio_rag VALUES (63, 1, 'Diploma di ragioniere', 'Università di Bologna', #06/16/1990#);
INSERT INTO titolo_studio_rag VALUES (64, 1, 'Laurea in economia e commercio', 'Università di Bologna', #02/01/1998#);
INSERT INTO titolo_studio_rag VALUES (65, 1, 'Laurea in economia e commercio', 'Università di Bologna', #11/28/1980#);
INSERT INTO titolo_studio_rag VALUES (66, 1, 'Diploma di ragioniere', 'Università di Bologna', #03/18/2001#);
INSERT INTO titolo_studio_rag VALUES (67, 1, 'Laurea in economia e commercio', 'Università di Bologna', #12/21/2000#);
INSERT INTO titolo_studio_rag VALUES (68, 1, 'Laurea in economia e commercio', 'Università di Bologna', #12/21/2000#);
INSERT INTO titolo_studio_rag VALUES (69, 1, 'Diploma di ragioniere', 'Università di Bologna', #11/24/1996#);
INSERT INTO titolo_studio_rag VALUES (70, 1, 'Laurea in economia e commercio', 'Università di Bologna', #08/12/2000#);
INSERT INTO titolo_studio_rag VALUES (70, 2, 'Master in diritto tributario', 'Università di Urbino', NULL);
INSERT INTO titolo_studio_rag VALUES (71, 1, 'Laurea in economia e commercio', 'Università di Bologna', #03/10/1992#);
INSERT INTO titolo_studio_rag VALUES (72, 1, 'Diploma di ragioniere', 'Università di Bologna', #08/03/1977#);
INSERT INTO titolo_studio_rag VALUES (73, 1, 'Laurea in economia e commercio', 'Università di Bologna', #01/03/1991#);
INSERT INTO titolo_studio_rag VALUES (74, 1, 'Laurea in economia e commercio', 'Università di Bologna', #08/06/1994#);
INSERT INTO titolo_studio_rag VALUES (75, 1, 'Diploma di ragioniere', 'Università di Bologna', #03/12/1982#);
INSERT INTO titolo_studio_rag VALUES (76, 1, 'Laurea in economia e commercio', 'Università di Bologna', #08/12/1996#);
INSERT INTO titolo_studio_rag VALUES (77, 1, 'Laurea in economia e commercio', 'Università di Bologna', #09/26/1991#);
INSERT INTO titolo_studio_rag VALUES (78, 1, 'Diploma di ragioniere', 'Università di Bologna', #12/22/1998#);
INSERT INTO titolo_studio_rag VALUES (79, 1, 'Laurea in economia e commercio', 'Università di Bologna', #09/07/1993#);
INSERT INTO titolo_studio_rag VALUES (80, 1, 'Laurea in economia e commercio', 'Università di Bologna', #02/16/1979#);
INSERT INTO titolo_studio_rag VALUES (80, 2, 'Master in diritto tributario', 'Università di Urbino', NULL);
INSERT INTO titolo_studio_rag VALUES (81, 1, 'Diploma di ragioniere', 'Università di Bologna', #09/04/1985#);
INSERT INTO titolo_studio_rag VALUES (82, 1, 'Laurea in economia e commercio', 'Università di Bologna', #03/25/1983#);
INSERT INTO titolo_studio_rag VALUES (83, 1, 'Laurea in economia e commercio', 'Università di Bologna', #02/18/1991#);
INSERT INTO titolo_studio_rag VALUES (84, 1, 'Diploma di ragioniere', 'Università di Bologna', #01/24/1986#);
INSERT INTO titolo_studio_rag VALUES (85, 1, 'Laurea in economia e commercio', 'Università di Bologna', #12/27/1993#);
INSERT INTO titolo_studio_rag VALUES (86, 1, 'Laurea in economia e commercio', 'Università di Bologna', #09/20/1994#);
INSERT INTO titolo_studio_rag VALUES (87, 1, 'Diploma di ragioniere', 'Università di Bologna', #03/29/1996#);
INSERT INTO titolo_studio_rag VALUES (88, 1, 'Laurea in economia e commercio', 'Università di Bologna', #11/28/1962#);
INSERT INTO titolo_studio_rag VALUES (89, 1, 'Laurea in economia e commercio', 'Università di Bologna', #08/10/1993#);
INSERT INTO titolo_studio_rag VALUES (90, 1, 'Diploma di ragioniere', 'Università di Bologna', #06/10/1978#);
INSERT INTO titolo_studio_rag VALUES (90, 2, 'Master in diritto tributario', 'Università di Urbino', NULL);
INSERT INTO titolo_studio_rag VALUES (91, 1, 'Laurea in economia e commercio', 'Università di Bologna', #12/08/1990#);
INSERT INTO titolo_studio_rag VALUES (92, 1, 'Laurea in economia e commercio', 'Università di Bologna', #07/10/1994#);
INSERT INTO titolo_studio_rag VALUES (93, 1, 'Diploma di ragioniere', 'Università di Bologna', #02/18/1995#);
INSERT INTO titolo_studio_rag VALUES (94, 1, 'Laurea in economia e commercio', 'Università di Bologna', #10/22/1997#);
INSERT INTO titolo_studio_rag VALUES (95, 1, 'Laurea in economia e commercio', 'Università di Bologna', #06/07/1995#);
INSERT INTO titolo_studio_rag VALUES (96, 1, 'Diploma di ragioniere', 'Università di Bologna', #12/01/1965#);
INSERT INTO titolo_studio_rag VALUES (97, 1, 'Laurea in economia e commercio', 'Università di Bologna', #11/06/1997#);
INSERT INTO titolo_studio_rag VALUES (98, 1, 'Laurea in economia e commercio', 'Università di Bologna', #06/06/1992#);
INSERT INTO titolo_studio_rag VALUES (99, 1, 'Diploma di ragioniere', 'Università di Bologna', #03/06/1999#);
INSERT INTO titolo_studio_rag VALUES (100, 1, 'Laurea in economia e commercio', 'Università di Bologna', #01/10/2000#);
INSERT INTO titolo_studio_rag VALUES (100, 2, 'Master in diritto tributario', 'Università di Urbino', NULL);

CREATE TABLE privacy (
  cd_matr LONG CONSTRAINT PrimaryKey PRIMARY KEY,
  aut_res YESNO,
  aut_studio YESNO);
ALTER TABLE privacy ADD CONSTRAINT ragioniere_privacy
  FOREIGN KEY (cd_matr) REFERENCES ragioniere (cd_matr) ON DELETE CASCADE;

INSERT INTO privacy VALUES (1, FALSE, TRUE);
INSERT INTO privacy VALUES (3, TRUE, TRUE);
INSERT INTO privacy VALUES (5, FALSE, TRUE);
INSERT INTO privacy VALUES (7, FALSE, TRUE);
INSERT INTO privacy VALUES (9, TRUE, TRUE);
INSERT INTO privacy VALUES (11, FALSE, TRUE);
INSERT INTO privacy VALUES (13, FALSE, TRUE);
INSERT INTO privacy VALUES (15, TRUE, TRUE);
INSERT INTO privacy VALUES (17, FALSE, TRUE);
INSERT INTO privacy VALUES (19, FALSE, TRUE);
INSERT INTO privacy VALUES (21, TRUE, TRUE);
INSERT INTO privacy VALUES (23, FALSE, TRUE);
INSERT INTO privacy VALUES (25, FALSE, TRUE);
INSERT INTO privacy VALUES (27, TRUE, TRUE);
INSERT INTO privacy VALUES (29, FALSE, TRUE);
INSERT INTO privacy VALUES (31, FALSE, TRUE);
INSERT INTO privacy VALUES (33, TRUE, TRUE);
INSERT INTO privacy VALUES (35, FALSE, TRUE);
INSERT INTO privacy VALUES (37, FALSE, TRUE);
INSERT INTO privacy VALUES (39, TRUE, TRUE);
INSERT INTO privacy VALUES (41, FALSE, TRUE);
INSERT INTO privacy VALUES (43, FALSE, TRUE);
INSERT INTO privacy VALUES (45, TRUE, TRUE);
INSERT INTO privacy VALUES (47, FALSE, TRUE);
INSERT INTO privacy VALUES (49, FALSE, TRUE);
INSERT INTO privacy VALUES (51, TRUE, TRUE);
INSERT INTO privacy VALUES (53, FALSE, TRUE);
INSERT INTO privacy VALUES (55, FALSE, TRUE);
INSERT INTO privacy VALUES (57, TRUE, TRUE);
INSERT INTO privacy VALUES (59, FALSE, TRUE);
INSERT INTO privacy VALUES (61, FALSE, TRUE);
INSERT INTO privacy VALUES (63, TRUE, TRUE);
INSERT INTO privacy VALUES (65, FALSE, TRUE);
INSERT INTO privacy VALUES (67, FALSE, TRUE);
INSERT INTO privacy VALUES (69, TRUE, TRUE);
INSERT INTO privacy VALUES (71, FALSE, TRUE);
INSERT INTO privacy VALUES (73, FALSE, TRUE);
INSERT INTO privacy VALUES (75, TRUE, TRUE);
INSERT INTO privacy VALUES (77, FALSE, TRUE);
INSERT INTO privacy VALUES (79, FALSE, TRUE);
INSERT INTO privacy VALUES (81, TRUE, TRUE);
INSERT INTO privacy VALUES (83, FALSE, TRUE);
INSERT INTO privacy VALUES (85, FALSE, TRUE);
INSERT INTO privacy VALUES (87, TRUE, TRUE);
INSERT INTO privacy VALUES (89, FALSE, TRUE);
INSERT INTO privacy VALUES (91, FALSE, TRUE);
INSERT INTO privacy VALUES (93, TRUE, TRUE);
INSERT INTO privacy VALUES (95, FALSE, TRUE);
INSERT INTO privacy VALUES (97, FALSE, TRUE);
INSERT INTO privacy VALUES (99, TRUE, TRUE);
INSERT INTO privacy VALUES (101, FALSE, TRUE);
INSERT INTO privacy VALUES (103, FALSE, TRUE);
INSERT INTO privacy VALUES (105, TRUE, TRUE);
INSERT INTO privacy VALUES (107, FALSE, TRUE);
INSERT INTO privacy VALUES (109, FALSE, TRUE);
INSERT INTO privacy VALUES (111, TRUE, TRUE);
INSERT INTO privacy VALUES (113, FALSE, TRUE);
INSERT INTO privacy VALUES (115, FALSE, TRUE);
INSERT INTO privacy VALUES (117, TRUE, TRUE);
INSERT INTO privacy VALUES (119, FALSE, TRUE);
INSERT INTO privacy VALUES (121, FALSE, TRUE);
INSERT INTO privacy VALUES (123, TRUE, TRUE);
INSERT INTO privacy VALUES (125, FALSE, TRUE);
INSERT INTO privacy VALUES (127, FALSE, TRUE);
INSERT INTO privacy VALUES (129, TRUE, TRUE);
INSERT INTO privacy VALUES (131, FALSE, TRUE);
INSERT INTO privacy VALUES (133, FALSE, TRUE);
INSERT INTO privacy VALUES (135, TRUE, TRUE);
INSERT INTO privacy VALUES (137, FALSE, TRUE);
INSERT INTO privacy VALUES (139, FALSE, TRUE);
INSERT INTO privacy VALUES (141, TRUE, TRUE);
INSERT INTO privacy VALUES (143, FALSE, TRUE);
INSERT INTO privacy VALUES (145, FALSE, TRUE);
INSERT INTO privacy VALUES (147, TRUE, TRUE);
INSERT INTO privacy VALUES (149, FALSE, TRUE);
INSERT INTO privacy VALUES (151, FALSE, TRUE);
INSERT INTO privacy VALUES (153, TRUE, TRUE);
INSERT INTO privacy VALUES (155, FALSE, TRUE);
INSERT INTO privacy VALUES (157, FALSE, TRUE);
INSERT INTO privacy VALUES (159, TRUE, TRUE);
INSERT INTO privacy VALUES (161, FALSE, TRUE);
INSERT INTO privacy VALUES (163, FALSE, TRUE);
INSERT INTO privacy VALUES (165, TRUE, TRUE);
INSERT INTO privacy VALUES (167, FALSE, TRUE);
INSERT INTO privacy VALUES (169, FALSE, TRUE);

CREATE TABLE altri_recapiti (
  cd_classe TEXT(1) NOT NULL,
  cd_matr LONG NOT NULL,
  progressivo_recapito SHORT NOT NULL,
  flg_invio_corr YESNO,
  ds_indirizzo TEXT(80),
  ds_localita TEXT(60),
  cd_provincia TEXT(2),
  cd_cap TEXT(5),
  CONSTRAINT PrimaryKey PRIMARY KEY (cd_classe, cd_matr, progressivo_recapito));

INSERT INTO altri_recapiti VALUES ('C', 1, 1, TRUE, 'Via Carducci, 137', 'Terni', 'TR', '05100');
INSERT INTO altri_recapiti VALUES ('C', 13, 1, TRUE, 'Via Giuseppe Mazzini, 114', 'Reggio nell''Emilia', 'RE', '42100');
INSERT INTO altri_recapiti VALUES ('C', 25, 1, TRUE, 'Viale della Libertà, 111', 'Frosinone', 'FR', '03100');
INSERT INTO altri_recapiti VALUES ('C', 37, 1, TRUE, 'Via Ravegnana, 102', 'Rimini', 'RN', '47900');
INSERT INTO altri_recapiti VALUES ('C', 49, 1, TRUE, 'Via Giuseppe Mazzini, 115', 'Pavia', 'PV', '27100');
INSERT INTO altri_recapiti VALUES ('C', 61, 1, TRUE, 'Via Ravegnana, 127', 'Firenze', 'FI', '50100');
INSERT INTO altri_recapiti VALUES ('C', 73, 1, TRUE, 'Vicolo dell''Università, 83', 'Aosta', 'AO', '11100');
INSERT INTO altri_recapiti VALUES ('C', 85, 1, TRUE, 'Via Roma, 79', 'Ferrara', 'FE', '44100');
INSERT INTO altri_recapiti VALUES ('C', 97, 1, TRUE, 'Corso della Repubblica, 64', 'Senigallia', 'AN', '60019');
INSERT INTO altri_recapiti VALUES ('C', 109, 1, TRUE, 'Vicolo dell''Università, 120', 'Rimini', 'RN', '47900');
INSERT INTO altri_recapiti VALUES ('C', 121, 1, TRUE, 'Piazza Cavour, 135', 'Bassano del Grappa', 'VI', '36061');
INSERT INTO altri_recapiti VALUES ('C', 133, 1, TRUE, 'Largo Nicolò Copernico, 112', 'La Spezia', 'SP', '19100');
INSERT INTO altri_recapiti VALUES ('C', 145, 1, TRUE, 'Largo Nicolò Copernico, 26', 'Pisa', 'PI', '56100');
INSERT INTO altri_recapiti VALUES ('C', 157, 1, TRUE, 'Via XX Settembre, 72', 'Ascoli Piceno', 'AP', '63100');
INSERT INTO altri_recapiti VALUES ('C', 169, 1, TRUE, 'Corso della Repubblica, 31', 'Tivoli', 'RM', '00019');

CREATE TABLE tb_notifiche (
  Progressivo SHORT CONSTRAINT PrimaryKey PRIMARY KEY,
  ds_notifica TEXT(50),
  cd_rep_nome TEXT(20),
  cd_tipo TEXT(2),
  cd_stato TEXT(2),
  cd_statomot TEXT(2));

INSERT INTO tb_notifiche VALUES (1, 'Avviso di iscrizione', 'iscriz.doc', 'CO', 'IS', NULL);
INSERT INTO tb_notifiche VALUES (2, 'Avviso di cancellazione', 'cancell.doc', 'CO', 'CA', NULL);

CREATE TABLE tb_certificati (
  Progressivo SHORT CONSTRAINT PrimaryKey PRIMARY KEY,
  ds_certificato TEXT(60),
  cd_rep_nome TEXT(20),
  cd_tipo TEXT(2),
  cd_stato TEXT(2),
  cd_rep_nome2 TEXT(20));

INSERT INTO tb_certificati VALUES (1, 'Certificato di iscrizione', 'certisc.doc', 'AL', 'IS', NULL);
INSERT INTO tb_certificati VALUES (2, 'Certificato di pratica', 'certprat.doc', 'PR', 'IS', NULL);

CREATE TABLE tb_tesserini_setup (
  cd_setup LONG CONSTRAINT PrimaryKey PRIMARY KEY,
  ds_setup TEXT(60),
  Classe TEXT(1));

INSERT INTO tb_tesserini_setup VALUES (1, 'Tesserino plastificato', NULL);

CREATE TABLE tb_tesserini (
  cd_matr LONG NOT NULL,
  nr_tesserino LONG NOT NULL,
  dt_rilascio DATETIME,
  CONSTRAINT PrimaryKey PRIMARY KEY (cd_matr, nr_tesserino));

INSERT INTO tb_tesserini VALUES (1, 2001, #05/03/2004#);
INSERT INTO tb_tesserini VALUES (8, 2008, #05/03/2004#);
INSERT INTO tb_tesserini VALUES (15, 2015, #05/03/2004#);
INSERT INTO tb_tesserini VALUES (22, 2022, #05/03/2004#);
INSERT INTO tb_tesserini VALUES (29, 2029, #05/03/2004#);
INSERT INTO tb_tesserini VALUES (36, 2036, #05/03/2004#);
INSERT INTO tb_tesserini VALUES (43, 2043, #05/03/2004#);
INSERT INTO tb_tesserini VALUES (50, 2050, #05/03/2004#);
INSERT INTO tb_tesserini VALUES (57, 2057, #05/03/2004#);
INSERT INTO tb_tesserini VALUES (64, 2064, #05/03/2004#);
INSERT INTO tb_tesserini VALUES (71, 2071, #05/03/2004#);
INSERT INTO tb_tesserini VALUES (78, 2078, #05/03/2004#);
INSERT INTO tb_tesserini VALUES (85, 2085, #05/03/2004#);
INSERT INTO tb_tesserini VALUES (92, 2092, #05/03/2004#);
INSERT INTO tb_tesserini VALUES (99, 2099, #05/03/2004#);
INSERT INTO tb_tesserini VALUES (106, 2106, #05/03/2004#);
INSERT INTO tb_tesserini VALUES (113, 2113, #05/03/2004#);
INSERT INTO tb_tesserini VALUES (120, 2120, #05/03/2004#);
INSERT INTO tb_tesserini VALUES (127, 2127, #05/03/2004#);
INSERT INTO tb_tesserini VALUES (134, 2134, #05/03/2004#);
INSERT INTO tb_tesserini VALUES (141, 2141, #05/03/2004#);
INSERT INTO tb_tesserini VALUES (148, 2148, #05/03/2004#);
INSERT INTO tb_tesserini VALUES (155, 2155, #05/03/2004#);
INSERT INTO tb_tesserini VALUES (162, 2162, #05/03/2004#);
INSERT INTO tb_tesserini VALUES (169, 2169, #05/03/2004#);

CREATE TABLE tmp_rag (
  matricola LONG,
  ds_nominativo TEXT(80));
CREATE INDEX matricola ON tmp_rag (matricola);

INSERT INTO tmp_rag VALUES (1, 'Stampa interrotta');

CREATE TABLE tmp_prat (
  matricola LONG,
  ds_nominativo TEXT(80));
CREATE UNIQUE INDEX matricola ON tmp_prat (matricola);

CREATE TABLE tmp_morosi (
  matricola LONG,
  cd_anno SHORT);

-- Le query di una versione precedente, e una che l'ufficio si è fatto da sé.
.query status_anzianita SELECT cd_matr, fl_iscritto_elenco, dt_evento AS dt_iscrizione FROM status_ragioniere WHERE cd_tip_evento = 'IS' AND cd_mot_evento = 'IS'
.query iscritti_attivi SELECT * FROM ragioniere WHERE cd_stato_attuale = 'IS'
.query [auguri di Natale] SELECT ds_cognome, ds_nome, ds_comune_studio FROM ragioniere WHERE fl_spedizione = '2'
