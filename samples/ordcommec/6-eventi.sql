-- Storia degli iscritti. Due righe di stato_attuale mancano e alcune sono rimaste indietro.
CREATE TABLE motivo_evento (
  cd_evento TEXT(2) NOT NULL,
  cd_tip_evento TEXT(2) NOT NULL,
  cd_mot_evento TEXT(2) NOT NULL,
  ds_mot_evento TEXT(40),
  CONSTRAINT PrimaryKey PRIMARY KEY (cd_evento, cd_tip_evento, cd_mot_evento));

INSERT INTO motivo_evento VALUES ('AL', 'IS', 'IS', 'Iscrizione');
INSERT INTO motivo_evento VALUES ('AL', 'IS', 'RE', 'Reiscrizione');
INSERT INTO motivo_evento VALUES ('AL', 'IS', 'TR', 'Iscrizione per trasferimento');
INSERT INTO motivo_evento VALUES ('AL', 'IS', 'TE', 'Iscrizione per passaggio dall''elenco');
INSERT INTO motivo_evento VALUES ('AL', 'IS', 'PR', 'Iscrizione dal registro dei praticanti');
INSERT INTO motivo_evento VALUES ('AL', 'IS', 'SO', 'Sospensione');
INSERT INTO motivo_evento VALUES ('AL', 'IS', 'RS', 'Revoca della sospensione');
INSERT INTO motivo_evento VALUES ('AL', 'CA', 'DI', 'Cancellazione per dimissioni');
INSERT INTO motivo_evento VALUES ('AL', 'CA', 'DE', 'Cancellazione per decesso');
INSERT INTO motivo_evento VALUES ('AL', 'CA', 'MO', 'Cancellazione per morosità');
INSERT INTO motivo_evento VALUES ('AL', 'CA', 'TR', 'Cancellazione per trasferimento');
INSERT INTO motivo_evento VALUES ('AL', 'CA', 'TE', 'Cancellazione per passaggio all''elen');
INSERT INTO motivo_evento VALUES ('AL', 'CA', 'RA', 'Radiazione');
INSERT INTO motivo_evento VALUES ('EL', 'IS', 'IS', 'Iscrizione all''elenco');
INSERT INTO motivo_evento VALUES ('EL', 'IS', 'RE', 'Reiscrizione all''elenco');
INSERT INTO motivo_evento VALUES ('EL', 'IS', 'TR', 'Iscrizione per trasferimento');
INSERT INTO motivo_evento VALUES ('EL', 'IS', 'TA', 'Iscrizione per passaggio dall''albo');
INSERT INTO motivo_evento VALUES ('EL', 'IS', 'SO', 'Sospensione dall''elenco');
INSERT INTO motivo_evento VALUES ('EL', 'IS', 'RS', 'Revoca della sospensione');
INSERT INTO motivo_evento VALUES ('EL', 'CA', 'DI', 'Cancellazione per dimissioni');
INSERT INTO motivo_evento VALUES ('EL', 'CA', 'TR', 'Cancellazione per trasferimento');
INSERT INTO motivo_evento VALUES ('EL', 'CA', 'TA', 'Cancellazione per passaggio all''albo');
INSERT INTO motivo_evento VALUES ('EL', 'CA', 'RA', 'Radiazione');
INSERT INTO motivo_evento VALUES ('PR', 'IS', 'IS', 'Iscrizione al registro dei praticanti');
INSERT INTO motivo_evento VALUES ('PR', 'IN', '01', 'Servizio militare');
INSERT INTO motivo_evento VALUES ('PR', 'IN', '02', 'Maternità');
INSERT INTO motivo_evento VALUES ('PR', 'IN', '03', 'Malattia');
INSERT INTO motivo_evento VALUES ('PR', 'RE', 'RE', 'Relazione semestrale');
INSERT INTO motivo_evento VALUES ('PR', 'CA', 'DI', 'Cancellazione per dimissioni');
INSERT INTO motivo_evento VALUES ('AL', 'CA', 'IN', 'Cancellazione per incompatibilità');

CREATE TABLE status_ragioniere (
  cd_prg COUNTER CONSTRAINT PrimaryKey PRIMARY KEY,
  cd_matr LONG NOT NULL,
  cd_evento TEXT(2) NOT NULL,
  cd_tip_evento TEXT(2) NOT NULL,
  cd_mot_evento TEXT(2) NOT NULL,
  dt_evento DATETIME,
  nr_evento LONG,
  fl_iscritto_elenco YESNO,
  nr_norvo BYTE,
  nr_collegio LONG,
  nr_protocollo LONG,
  dt_dec_canc DATETIME,
  dt_delibera DATETIME,
  dt_finale DATETIME,
  cd_sg_prov_collegio TEXT(2),
  reg_collegio TEXT(20));
CREATE INDEX Storia ON status_ragioniere (dt_evento, cd_matr);
CREATE INDEX Protocollo ON status_ragioniere (nr_protocollo);
ALTER TABLE status_ragioniere ADD CONSTRAINT ragioniere_status FOREIGN KEY (cd_matr) REFERENCES ragioniere (cd_matr);

INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (1, 'AL', 'IS', 'IS', #10/23/1975#, 1, FALSE, 1, 12, NULL, NULL, NULL, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (2, 'AL', 'IS', 'IS', #07/02/1999#, 1, FALSE, 1, 13, 1004, NULL, #06/27/1999#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (3, 'AL', 'IS', 'IS', #06/24/1990#, 1, FALSE, 1, 14, NULL, NULL, #06/19/1990#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (4, 'AL', 'IS', 'IS', #08/30/1993#, 1, FALSE, 1, 15, NULL, NULL, #08/25/1993#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (5, 'AL', 'IS', 'IS', #10/10/2001#, 1, FALSE, 1, 16, 1007, NULL, #10/05/2001#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (6, 'AL', 'IS', 'IS', #11/03/2002#, 1, FALSE, 1, 17, 1010, NULL, #10/29/2002#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (7, 'AL', 'IS', 'IS', #10/31/1990#, 1, FALSE, 1, 18, NULL, NULL, #10/26/1990#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (8, 'AL', 'IS', 'IS', #08/29/2001#, 1, FALSE, 1, 19, 1013, NULL, #08/24/2001#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (9, 'AL', 'IS', 'IS', #11/06/2003#, 1, FALSE, 1, 20, 1015, NULL, #11/01/2003#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (10, 'AL', 'IS', 'IS', #12/20/1990#, 1, FALSE, 1, 21, NULL, NULL, #12/15/1990#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (11, 'AL', 'IS', 'IS', #09/03/2002#, 1, FALSE, 1, 22, 1018, NULL, #08/29/2002#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (12, 'AL', 'IS', 'IS', #09/18/1982#, 1, FALSE, 1, 23, NULL, NULL, #09/13/1982#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (13, 'AL', 'IS', 'IS', #12/20/2001#, 1, FALSE, 1, 24, 1022, NULL, #12/15/2001#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (14, 'AL', 'IS', 'IS', #07/30/1981#, 1, FALSE, 1, 25, NULL, NULL, #07/25/1981#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (14, 'AL', 'IS', 'SO', #01/21/1996#, 2, FALSE, 1, 25, 1028, #02/05/1996#, #01/16/1996#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (15, 'AL', 'IS', 'IS', #11/22/2003#, 1, FALSE, 1, 26, 1030, NULL, #11/17/2003#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (16, 'AL', 'IS', 'IS', #10/12/1992#, 1, FALSE, 1, 27, NULL, NULL, #10/07/1992#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (17, 'AL', 'IS', 'TR', #03/19/1984#, 1, FALSE, 1, 28, NULL, NULL, #03/14/1984#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (18, 'AL', 'IS', 'IS', #05/04/2003#, 1, FALSE, 1, 29, 1035, NULL, #04/29/2003#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (19, 'AL', 'IS', 'IS', #04/21/1993#, 1, FALSE, 1, 30, NULL, NULL, #04/16/1993#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (20, 'AL', 'IS', 'IS', #09/16/1980#, 1, FALSE, 1, 31, NULL, NULL, NULL, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (21, 'AL', 'IS', 'IS', #05/22/1983#, 1, FALSE, 1, 32, NULL, NULL, #05/17/1983#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (22, 'AL', 'IS', 'IS', #12/27/2004#, 1, FALSE, 1, 33, 1042, NULL, #12/22/2004#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (23, 'AL', 'IS', 'IS', #05/08/2001#, 1, FALSE, 1, 34, 1045, NULL, #05/03/2001#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (23, 'AL', 'IS', 'SO', #10/19/2003#, 2, FALSE, 1, 34, 1048, NULL, #10/14/2003#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (23, 'AL', 'IS', 'RS', #11/18/2003#, 3, FALSE, 1, 34, 1049, NULL, #11/13/2003#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (24, 'AL', 'IS', 'IS', #04/21/2005#, 1, FALSE, 1, 35, 1051, NULL, #04/16/2005#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (25, 'AL', 'IS', 'IS', #03/26/1967#, 1, FALSE, 1, 36, NULL, NULL, NULL, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (26, 'AL', 'IS', 'IS', #10/03/1985#, 1, FALSE, 1, 37, NULL, NULL, #09/28/1985#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (26, 'AL', 'CA', 'DI', #03/04/1992#, 2, FALSE, 1, 37, NULL, NULL, #02/28/1992#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (26, 'AL', 'IS', 'RE', #09/11/1995#, 3, FALSE, 1, 37, NULL, NULL, #09/06/1995#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (27, 'AL', 'IS', 'IS', #09/01/2004#, 1, FALSE, 1, 38, 1060, NULL, #08/27/2004#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (28, 'AL', 'IS', 'IS', #11/28/1997#, 1, FALSE, 1, 39, 1062, NULL, #11/23/1997#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (29, 'AL', 'IS', 'IS', #11/13/1985#, 1, FALSE, 1, 40, NULL, NULL, #11/08/1985#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (30, 'AL', 'IS', 'IS', #11/19/1986#, 1, FALSE, 1, 41, NULL, NULL, #11/14/1986#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (31, 'AL', 'IS', 'IS', #06/12/1996#, 1, FALSE, 1, 42, 1068, NULL, #06/07/1996#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (32, 'AL', 'IS', 'IS', #03/03/2003#, 1, FALSE, 1, 43, 1071, NULL, #02/26/2003#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (33, 'AL', 'IS', 'IS', #07/05/2001#, 1, FALSE, 1, 44, 1074, NULL, #06/30/2001#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (34, 'AL', 'IS', 'TR', #05/14/2005#, 1, FALSE, 1, 45, 1077, NULL, #05/09/2005#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (34, 'AL', 'CA', 'MO', #12/05/2005#, 2, FALSE, 1, 45, 1078, NULL, #11/30/2005#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (35, 'AL', 'IS', 'IS', #01/11/2005#, 1, FALSE, 1, 46, 1081, NULL, #01/06/2005#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (35, 'AL', 'IS', 'SO', #12/01/2005#, 2, FALSE, 1, 46, 1083, #12/16/2005#, #11/26/2005#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (36, 'AL', 'IS', 'IS', #02/07/1975#, 1, FALSE, 1, 47, NULL, NULL, NULL, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (37, 'AL', 'IS', 'IS', #09/30/2001#, 1, FALSE, 1, 48, 1087, NULL, #09/25/2001#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (37, 'AL', 'CA', 'MO', #07/29/2004#, 2, FALSE, 1, 48, 1088, NULL, #07/24/2004#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (38, 'AL', 'IS', 'IS', #06/17/1969#, 1, FALSE, 1, 49, NULL, NULL, NULL, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (39, 'AL', 'IS', 'IS', #12/22/1983#, 1, FALSE, 1, 50, NULL, NULL, #12/17/1983#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (39, 'AL', 'CA', 'DI', #03/04/1992#, 2, FALSE, 1, 50, NULL, NULL, #02/28/1992#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (39, 'AL', 'IS', 'RE', #09/11/1995#, 3, FALSE, 1, 50, NULL, NULL, #09/06/1995#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (40, 'AL', 'IS', 'IS', #05/18/1999#, 1, FALSE, 1, 51, 1101, NULL, #05/13/1999#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (41, 'AL', 'IS', 'IS', #08/06/2001#, 1, FALSE, 1, 52, 1102, NULL, #08/01/2001#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (42, 'AL', 'IS', 'IS', #02/26/1965#, 1, FALSE, 1, 53, NULL, NULL, NULL, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (42, 'AL', 'IS', 'SO', #03/11/1990#, 2, FALSE, 1, 53, NULL, #03/26/1990#, #03/06/1990#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (43, 'AL', 'IS', 'IS', #03/05/1985#, 1, FALSE, 1, 54, NULL, NULL, #02/28/1985#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (44, 'AL', 'IS', 'IS', #04/04/1981#, 1, FALSE, 1, 55, NULL, NULL, #03/30/1981#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (45, 'AL', 'IS', 'IS', #05/24/1992#, 1, FALSE, 1, 56, NULL, NULL, #05/19/1992#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (45, 'AL', 'IS', 'SO', #09/23/1994#, 2, FALSE, 1, 56, NULL, #10/08/1994#, #09/18/1994#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (46, 'AL', 'IS', 'IS', #12/19/1979#, 1, FALSE, 1, 57, NULL, NULL, NULL, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (46, 'AL', 'IS', 'SO', #07/19/1997#, 2, FALSE, 1, 57, 1121, NULL, #07/14/1997#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (46, 'AL', 'IS', 'RS', #08/18/1997#, 3, FALSE, 1, 57, 1124, NULL, #08/13/1997#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (47, 'AL', 'IS', 'IS', #08/17/1994#, 1, FALSE, 1, 58, NULL, NULL, #08/12/1994#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (48, 'AL', 'IS', 'IS', #02/13/2001#, 1, FALSE, 1, 59, 1128, NULL, #02/08/2001#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (49, 'AL', 'IS', 'IS', #12/07/1979#, 1, FALSE, 1, 60, NULL, NULL, NULL, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (50, 'AL', 'IS', 'IS', #12/31/2002#, 1, FALSE, 1, 61, 1133, NULL, #12/26/2002#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (50, 'AL', 'IS', 'SO', #11/28/2003#, 2, FALSE, 1, 61, 1135, #12/13/2003#, #11/23/2003#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (51, 'AL', 'IS', 'TR', #09/01/1999#, 1, FALSE, 1, 62, 1137, NULL, #08/27/1999#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (51, 'AL', 'CA', 'TE', #06/05/2005#, 2, FALSE, 1, 62, 1138, NULL, #05/31/2005#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (51, 'EL', 'IS', 'TA', #06/05/2005#, 3, TRUE, 1, 62, 1139, NULL, #05/31/2005#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (52, 'AL', 'IS', 'IS', #09/11/2004#, 1, FALSE, 1, 63, 1140, NULL, #09/06/2004#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (53, 'AL', 'IS', 'IS', #03/23/1985#, 1, FALSE, 1, 64, NULL, NULL, #03/18/1985#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (54, 'AL', 'IS', 'IS', #07/14/1996#, 1, FALSE, 1, 65, 1143, NULL, #07/09/1996#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (55, 'AL', 'IS', 'IS', #02/26/1995#, 1, FALSE, 1, 66, NULL, NULL, #02/21/1995#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (56, 'AL', 'IS', 'IS', #09/20/1975#, 1, FALSE, 1, 67, NULL, NULL, NULL, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (57, 'AL', 'IS', 'IS', #01/23/1987#, 1, FALSE, 1, 68, NULL, NULL, #01/18/1987#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (58, 'AL', 'IS', 'IS', #12/21/1991#, 1, FALSE, 1, 69, NULL, NULL, #12/16/1991#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (59, 'AL', 'IS', 'IS', #07/06/1980#, 1, FALSE, 1, 70, NULL, NULL, NULL, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (60, 'AL', 'IS', 'IS', #01/04/1984#, 1, FALSE, 1, 71, NULL, NULL, #12/30/1983#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (60, 'AL', 'CA', 'TE', #07/17/2005#, 2, FALSE, 1, 71, 1157, NULL, #07/12/2005#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (60, 'EL', 'IS', 'TA', #07/17/2005#, 3, TRUE, 1, 71, 1158, NULL, #07/12/2005#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (61, 'AL', 'IS', 'IS', #04/16/1999#, 1, FALSE, 1, 72, 1161, NULL, #04/11/1999#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (61, 'AL', 'IS', 'SO', #04/04/2003#, 2, FALSE, 1, 72, 1163, #04/19/2003#, #03/30/2003#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (62, 'AL', 'IS', 'IS', #06/02/2003#, 1, FALSE, 1, 73, 1164, NULL, #05/28/2003#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (63, 'AL', 'IS', 'IS', #04/16/1994#, 1, FALSE, 1, 74, NULL, NULL, #04/11/1994#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (64, 'AL', 'IS', 'IS', #12/02/2001#, 1, FALSE, 1, 75, 1169, NULL, #11/27/2001#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (65, 'AL', 'IS', 'IS', #09/28/1984#, 1, FALSE, 1, 76, NULL, NULL, #09/23/1984#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (65, 'AL', 'CA', 'DI', #03/04/1992#, 2, FALSE, 1, 76, NULL, NULL, #02/28/1992#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (65, 'AL', 'IS', 'RE', #09/11/1995#, 3, FALSE, 1, 76, NULL, NULL, #09/06/1995#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (66, 'AL', 'IS', 'IS', #01/16/2005#, 1, FALSE, 1, 77, 1177, NULL, #01/11/2005#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (67, 'AL', 'IS', 'IS', #10/21/2004#, 1, FALSE, 1, 78, 1178, NULL, #10/16/2004#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (68, 'AL', 'IS', 'TR', #10/21/2004#, 1, FALSE, 1, 79, 1181, NULL, #10/16/2004#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (68, 'AL', 'IS', 'SO', #06/30/2005#, 2, FALSE, 1, 79, 1183, #07/15/2005#, #06/25/2005#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (69, 'AL', 'IS', 'IS', #09/24/2000#, 1, FALSE, 1, 80, 1184, NULL, #09/19/2000#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (69, 'AL', 'IS', 'SO', #11/23/2005#, 2, FALSE, 1, 80, 1185, NULL, #11/18/2005#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (69, 'AL', 'IS', 'RS', #12/23/2005#, 3, FALSE, 1, 80, 1188, NULL, #12/18/2005#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (70, 'AL', 'IS', 'IS', #06/12/2004#, 1, FALSE, 1, 81, 1190, NULL, #06/07/2004#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (71, 'AL', 'IS', 'IS', #01/09/1996#, 1, FALSE, 1, 82, 1193, NULL, #01/04/1996#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (72, 'AL', 'IS', 'IS', #06/03/1981#, 1, FALSE, 1, 83, NULL, NULL, #05/29/1981#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (73, 'AL', 'IS', 'IS', #11/03/1994#, 1, FALSE, 1, 84, NULL, NULL, #10/29/1994#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (74, 'AL', 'IS', 'IS', #06/06/1998#, 1, FALSE, 1, 85, 1199, NULL, #06/01/1998#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (75, 'AL', 'IS', 'IS', #01/10/1986#, 1, FALSE, 1, 86, NULL, NULL, #01/05/1986#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (76, 'AL', 'IS', 'IS', #06/12/2000#, 1, FALSE, 1, 87, 1203, NULL, #06/07/2000#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (77, 'AL', 'IS', 'IS', #07/27/1995#, 1, FALSE, 1, 88, NULL, NULL, #07/22/1995#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (78, 'AL', 'IS', 'IS', #10/22/2002#, 1, FALSE, 1, 89, 1207, NULL, #10/17/2002#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (79, 'AL', 'IS', 'IS', #07/08/1997#, 1, FALSE, 1, 90, 1208, NULL, #07/03/1997#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (80, 'AL', 'IS', 'IS', #12/17/1982#, 1, FALSE, 1, 91, NULL, NULL, #12/12/1982#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (81, 'AL', 'IS', 'IS', #07/05/1989#, 1, FALSE, 1, 92, NULL, NULL, #06/30/1989#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (81, 'AL', 'CA', 'TE', #06/16/2000#, 2, FALSE, 1, 92, 1214, NULL, #06/11/2000#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (81, 'EL', 'IS', 'TA', #06/16/2000#, 3, TRUE, 1, 92, 1216, NULL, #06/11/2000#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (82, 'AL', 'IS', 'IS', #01/23/1987#, 1, FALSE, 1, 93, NULL, NULL, #01/18/1987#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (83, 'AL', 'IS', 'IS', #12/19/1994#, 1, FALSE, 1, 94, NULL, NULL, #12/14/1994#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (84, 'AL', 'IS', 'IS', #11/24/1989#, 1, FALSE, 1, 95, NULL, NULL, #11/19/1989#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (85, 'AL', 'IS', 'TR', #10/27/1997#, 1, FALSE, 1, 96, 1224, NULL, #10/22/1997#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (86, 'AL', 'IS', 'IS', #07/21/1998#, 1, FALSE, 1, 97, 1225, NULL, #07/16/1998#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (87, 'AL', 'IS', 'IS', #01/28/2000#, 1, FALSE, 1, 98, 1226, NULL, #01/23/2000#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (88, 'AL', 'IS', 'IS', #09/28/1966#, 1, FALSE, 1, 99, NULL, NULL, NULL, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (89, 'AL', 'IS', 'IS', #06/10/1997#, 1, FALSE, 1, 100, 1229, NULL, #06/05/1997#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (89, 'AL', 'IS', 'SO', #12/03/2002#, 2, FALSE, 1, 100, 1232, #12/18/2002#, #11/28/2002#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (90, 'AL', 'IS', 'IS', #04/10/1982#, 1, FALSE, 1, 101, NULL, NULL, #04/05/1982#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (91, 'AL', 'IS', 'IS', #10/08/1994#, 1, FALSE, 1, 102, NULL, NULL, #10/03/1994#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (92, 'AL', 'IS', 'IS', #05/10/1998#, 1, FALSE, 1, 103, 1238, NULL, #05/05/1998#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (92, 'AL', 'IS', 'SO', #06/06/2000#, 2, FALSE, 1, 103, 1239, NULL, #06/01/2000#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (92, 'AL', 'IS', 'RS', #07/06/2000#, 3, FALSE, 1, 103, 1242, NULL, #07/01/2000#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (93, 'AL', 'IS', 'IS', #12/19/1998#, 1, FALSE, 1, 104, 1245, NULL, #12/14/1998#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (94, 'AL', 'IS', 'IS', #08/22/2001#, 1, FALSE, 1, 105, 1248, NULL, #08/17/2001#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (95, 'AL', 'IS', 'IS', #04/07/1999#, 1, FALSE, 1, 106, 1251, NULL, #04/02/1999#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (96, 'AL', 'IS', 'IS', #10/01/1969#, 1, FALSE, 1, 107, NULL, NULL, NULL, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (97, 'AL', 'IS', 'IS', #09/06/2001#, 1, FALSE, 1, 108, 1253, NULL, #09/01/2001#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (97, 'AL', 'CA', 'TE', #08/10/2004#, 2, FALSE, 1, 108, 1255, NULL, #08/05/2004#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (97, 'EL', 'IS', 'TA', #08/10/2004#, 3, TRUE, 1, 108, 1256, NULL, #08/05/2004#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (98, 'AL', 'IS', 'IS', #04/06/1996#, 1, FALSE, 1, 109, 1259, NULL, #04/01/1996#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (99, 'AL', 'IS', 'IS', #01/04/2003#, 1, FALSE, 1, 110, 1260, NULL, #12/30/2002#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (100, 'AL', 'IS', 'IS', #11/10/2003#, 1, FALSE, 1, 111, 1262, NULL, #11/05/2003#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (101, 'AL', 'IS', 'IS', #09/07/1991#, 1, FALSE, 1, 112, NULL, NULL, #09/02/1991#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (102, 'AL', 'IS', 'TR', #01/22/1976#, 1, FALSE, 1, 113, NULL, NULL, NULL, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (103, 'AL', 'IS', 'IS', #05/07/1998#, 1, FALSE, 1, 114, 1267, NULL, #05/02/1998#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (104, 'AL', 'IS', 'IS', #10/02/1995#, 1, FALSE, 1, 115, NULL, NULL, #09/27/1995#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (105, 'AL', 'IS', 'IS', #08/16/1970#, 1, FALSE, 1, 116, NULL, NULL, NULL, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (106, 'AL', 'IS', 'IS', #04/23/1996#, 1, FALSE, 1, 117, 1271, NULL, #04/18/1996#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (107, 'AL', 'IS', 'IS', #05/02/2000#, 1, FALSE, 1, 118, 1273, NULL, #04/27/2000#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (108, 'AL', 'IS', 'IS', #05/10/1981#, 1, FALSE, 1, 119, NULL, NULL, #05/05/1981#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (109, 'AL', 'IS', 'IS', #12/02/1983#, 1, FALSE, 1, 120, NULL, NULL, #11/27/1983#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (110, 'AL', 'IS', 'IS', #01/01/1997#, 1, FALSE, 1, 121, 1281, NULL, #12/27/1996#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (111, 'AL', 'IS', 'IS', #07/16/1994#, 1, FALSE, 1, 122, NULL, NULL, #07/11/1994#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (112, 'AL', 'IS', 'IS', #07/25/1982#, 1, FALSE, 1, 123, NULL, NULL, #07/20/1982#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (113, 'AL', 'IS', 'IS', #01/25/2005#, 1, FALSE, 1, 124, 1286, NULL, #01/20/2005#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (113, 'AL', 'CA', 'DI', #10/09/2005#, 2, FALSE, 1, 124, 1288, NULL, #10/04/2005#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (114, 'AL', 'IS', 'IS', #06/05/1985#, 1, FALSE, 1, 125, NULL, NULL, #05/31/1985#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (115, 'AL', 'IS', 'IS', #05/21/2004#, 1, FALSE, 1, 126, 1290, NULL, #05/16/2004#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (115, 'AL', 'CA', 'DE', #03/04/2005#, 2, FALSE, 1, 126, 1291, NULL, #02/27/2005#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (116, 'AL', 'IS', 'IS', #03/25/1995#, 1, FALSE, 1, 127, NULL, NULL, #03/20/1995#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (117, 'AL', 'IS', 'IS', #01/26/1993#, 1, FALSE, 1, 128, NULL, NULL, #01/21/1993#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (118, 'AL', 'IS', 'IS', #09/10/2001#, 1, FALSE, 1, 129, 1297, NULL, #09/05/2001#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (119, 'AL', 'IS', 'TR', #11/06/1999#, 1, FALSE, 1, 130, 1298, NULL, #11/01/1999#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (119, 'AL', 'CA', 'DI', #09/30/2003#, 2, FALSE, 1, 130, 1299, NULL, #09/25/2003#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (120, 'AL', 'IS', 'IS', #11/07/1995#, 1, FALSE, 1, 131, NULL, NULL, #11/02/1995#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (121, 'AL', 'IS', 'IS', #04/06/2002#, 1, FALSE, 1, 132, 1304, NULL, #04/01/2002#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (122, 'AL', 'IS', 'IS', #05/03/1998#, 1, FALSE, 1, 133, 1307, NULL, #04/28/1998#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (123, 'AL', 'IS', 'IS', #06/11/2005#, 1, FALSE, 1, 134, 1310, NULL, #06/06/2005#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (124, 'AL', 'IS', 'IS', #04/18/1990#, 1, FALSE, 1, 135, NULL, NULL, #04/13/1990#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (125, 'AL', 'IS', 'IS', #12/22/1991#, 1, FALSE, 1, 136, NULL, NULL, #12/17/1991#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (126, 'AL', 'IS', 'IS', #02/09/2001#, 1, FALSE, 1, 137, 1316, NULL, #02/04/2001#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (127, 'AL', 'IS', 'IS', #03/12/1989#, 1, FALSE, 1, 138, NULL, NULL, #03/07/1989#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (127, 'AL', 'IS', 'SO', #02/07/1990#, 2, FALSE, 1, 138, NULL, #02/22/1990#, #02/02/1990#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (128, 'AL', 'IS', 'IS', #05/25/1978#, 1, FALSE, 1, 139, NULL, NULL, NULL, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (128, 'AL', 'CA', 'MO', #03/18/2002#, 2, FALSE, 1, 139, 1324, NULL, #03/13/2002#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (129, 'AL', 'IS', 'IS', #09/03/2004#, 1, FALSE, 1, 140, 1327, NULL, #08/29/2004#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (129, 'AL', 'CA', 'RA', #11/10/2005#, 2, FALSE, 1, 140, 1330, #11/10/2005#, #11/05/2005#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (130, 'AL', 'IS', 'IS', #04/14/1997#, 1, FALSE, 1, 141, 1332, NULL, #04/09/1997#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (131, 'AL', 'IS', 'IS', #10/03/1999#, 1, FALSE, 1, 142, 1334, NULL, #09/28/1999#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (132, 'AL', 'IS', 'IS', #12/22/1969#, 1, FALSE, 1, 143, NULL, NULL, NULL, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (132, 'AL', 'CA', 'DI', #06/04/1998#, 2, FALSE, 1, 143, 1338, #06/04/1998#, #05/30/1998#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (133, 'AL', 'IS', 'IS', #04/12/1992#, 1, FALSE, 1, 144, NULL, NULL, #04/07/1992#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (134, 'AL', 'IS', 'IS', #06/09/1987#, 1, FALSE, 1, 145, NULL, NULL, #06/04/1987#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (135, 'AL', 'IS', 'IS', #01/14/1992#, 1, FALSE, 1, 146, NULL, NULL, #01/09/1992#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (135, 'AL', 'IS', 'SO', #02/19/2002#, 2, FALSE, 1, 146, 1347, #03/06/2002#, #02/14/2002#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (136, 'AL', 'IS', 'TR', #03/20/2003#, 1, FALSE, 1, 147, 1348, NULL, #03/15/2003#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (137, 'AL', 'IS', 'IS', #02/06/2005#, 1, FALSE, 1, 148, 1351, NULL, #02/01/2005#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (138, 'AL', 'IS', 'IS', #10/09/2005#, 1, FALSE, 1, 149, 1352, NULL, #10/04/2005#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (138, 'AL', 'CA', 'RA', #02/20/2006#, 2, FALSE, 1, 149, 1354, #02/20/2006#, #02/15/2006#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (139, 'AL', 'IS', 'IS', #11/15/2004#, 1, FALSE, 1, 150, 1356, NULL, #11/10/2004#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (139, 'AL', 'CA', 'DI', #10/28/2005#, 2, FALSE, 1, 150, 1357, NULL, #10/23/2005#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (140, 'AL', 'IS', 'IS', #07/20/2005#, 1, FALSE, 1, 151, 1358, NULL, #07/15/2005#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (141, 'AL', 'IS', 'IS', #08/28/2004#, 1, FALSE, 1, 152, 1359, NULL, #08/23/2004#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (142, 'AL', 'IS', 'IS', #03/20/2005#, 1, FALSE, 1, 153, 1361, NULL, #03/15/2005#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (143, 'AL', 'IS', 'IS', #09/02/2003#, 1, FALSE, 1, 154, 1364, NULL, #08/28/2003#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (143, 'AL', 'CA', 'DI', #05/05/2005#, 2, FALSE, 1, 154, 1366, NULL, #04/30/2005#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (144, 'AL', 'IS', 'IS', #11/26/1996#, 1, FALSE, 1, 155, 1367, NULL, #11/21/1996#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (145, 'AL', 'IS', 'IS', #05/17/1998#, 1, FALSE, 1, 156, 1369, NULL, #05/12/1998#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (146, 'AL', 'IS', 'IS', #04/27/2004#, 1, FALSE, 1, 157, 1371, NULL, #04/22/2004#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (146, 'AL', 'IS', 'SO', #07/13/2005#, 2, FALSE, 1, 157, 1372, #07/28/2005#, #07/08/2005#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (147, 'AL', 'IS', 'IS', #05/17/2003#, 1, FALSE, 1, 158, 1375, NULL, #05/12/2003#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (147, 'AL', 'IS', 'SO', #01/31/2004#, 2, FALSE, 1, 158, 1377, #02/15/2004#, #01/26/2004#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (148, 'AL', 'IS', 'IS', #01/19/2004#, 1, FALSE, 1, 159, 1379, NULL, #01/14/2004#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (149, 'AL', 'IS', 'IS', #05/18/1971#, 1, FALSE, 1, 160, NULL, NULL, NULL, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (150, 'AL', 'IS', 'IS', #06/09/1990#, 1, FALSE, 1, 161, NULL, NULL, #06/04/1990#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (151, 'AL', 'IS', 'IS', #06/12/1990#, 1, FALSE, 1, 162, NULL, NULL, #06/07/1990#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (152, 'AL', 'IS', 'IS', #01/03/1999#, 1, FALSE, 1, 163, 1389, NULL, #12/29/1998#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (153, 'AL', 'IS', 'TR', #12/26/1989#, 1, FALSE, 1, 164, NULL, NULL, #12/21/1989#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (154, 'AL', 'IS', 'IS', #03/23/1972#, 1, FALSE, 1, 165, NULL, NULL, NULL, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (154, 'AL', 'IS', 'SO', #06/03/1993#, 2, FALSE, 1, 165, NULL, #06/18/1993#, #05/29/1993#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (155, 'AL', 'IS', 'IS', #10/15/1989#, 1, FALSE, 1, 166, NULL, NULL, #10/10/1989#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (156, 'AL', 'IS', 'IS', #04/25/1997#, 1, FALSE, 1, 167, 1398, NULL, #04/20/1997#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (157, 'AL', 'IS', 'IS', #01/22/1999#, 1, FALSE, 1, 168, 1399, NULL, #01/17/1999#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (157, 'AL', 'IS', 'SO', #09/14/2001#, 2, FALSE, 1, 168, 1401, #09/29/2001#, #09/09/2001#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (158, 'AL', 'IS', 'IS', #12/05/2002#, 1, FALSE, 1, 169, 1402, NULL, #11/30/2002#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (159, 'AL', 'IS', 'IS', #11/05/1990#, 1, FALSE, 1, 170, NULL, NULL, #10/31/1990#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (160, 'AL', 'IS', 'IS', #02/03/2003#, 1, FALSE, 1, 171, 1407, NULL, #01/29/2003#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (161, 'AL', 'IS', 'IS', #07/07/1998#, 1, FALSE, 1, 172, 1410, NULL, #07/02/1998#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (161, 'AL', 'IS', 'SO', #04/19/2005#, 2, FALSE, 1, 172, 1412, NULL, #04/14/2005#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (161, 'AL', 'IS', 'RS', #05/19/2005#, 3, FALSE, 1, 172, 1415, NULL, #05/14/2005#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (162, 'AL', 'IS', 'IS', #12/15/1996#, 1, FALSE, 1, 173, 1416, NULL, #12/10/1996#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (163, 'AL', 'IS', 'IS', #07/01/2001#, 1, FALSE, 1, 174, 1417, NULL, #06/26/2001#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (163, 'AL', 'CA', 'TR', #08/23/2002#, 2, FALSE, 1, 174, 1418, NULL, #08/18/2002#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (164, 'AL', 'IS', 'IS', #03/30/1980#, 1, FALSE, 1, 175, NULL, NULL, NULL, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (165, 'AL', 'IS', 'IS', #06/05/1991#, 1, FALSE, 1, 176, NULL, NULL, #05/31/1991#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (166, 'AL', 'IS', 'IS', #07/20/1995#, 1, FALSE, 1, 177, NULL, NULL, #07/15/1995#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (167, 'AL', 'IS', 'IS', #12/29/1996#, 1, FALSE, 1, 178, 1426, NULL, #12/24/1996#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (168, 'AL', 'IS', 'IS', #12/21/2000#, 1, FALSE, 1, 179, 1428, NULL, #12/16/2000#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (169, 'AL', 'IS', 'IS', #08/09/1995#, 1, FALSE, 1, 180, NULL, NULL, #08/04/1995#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO status_ragioniere (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, nr_evento, fl_iscritto_elenco, nr_norvo, nr_collegio, nr_protocollo, dt_dec_canc, dt_delibera, dt_finale, cd_sg_prov_collegio, reg_collegio) VALUES (170, 'AL', 'IS', 'TR', #06/09/1988#, 1, FALSE, 1, 181, NULL, NULL, #06/04/1988#, NULL, 'FC', 'Emilia-Romagna');

CREATE TABLE stato_attuale (
  nr_norvo BYTE NOT NULL,
  fl_iscritto_elenco YESNO,
  cd_matr LONG NOT NULL,
  nr_collegio LONG,
  cd_tip_evento_al TEXT(2),
  cd_mot_evento_al TEXT(2),
  dt_evento_al DATETIME,
  dt_evento_el DATETIME,
  cd_sg_prov_collegio TEXT(2),
  reg_collegio TEXT(20),
  CONSTRAINT PrimaryKey PRIMARY KEY (nr_norvo, fl_iscritto_elenco, cd_matr));

INSERT INTO stato_attuale VALUES (1, FALSE, 1, 12, 'IS', 'IS', #10/23/1975#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 2, 13, 'IS', 'IS', #07/02/1999#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 3, 14, 'IS', 'IS', #06/24/1990#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 4, 15, 'IS', 'IS', #08/30/1993#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 5, 16, 'IS', 'IS', #10/10/2001#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 6, 17, 'IS', 'IS', #11/03/2002#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 7, 18, 'IS', 'IS', #10/31/1990#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 8, 19, 'IS', 'IS', #08/29/2001#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 9, 20, 'IS', 'IS', #11/06/2003#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 10, 21, 'IS', 'IS', #12/20/1990#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 11, 22, 'IS', 'IS', #09/03/2002#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 12, 23, 'IS', 'IS', #09/18/1982#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 13, 24, 'IS', 'IS', #12/20/2001#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 14, 25, 'IS', 'SO', #02/05/1996#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 15, 26, 'IS', 'IS', #11/22/2003#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 16, 27, 'IS', 'IS', #10/12/1992#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 17, 28, 'IS', 'TR', #03/19/1984#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 18, 29, 'IS', 'IS', #05/04/2003#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 19, 30, 'IS', 'IS', #04/21/1993#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 20, 31, 'IS', 'IS', #09/16/1980#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 21, 32, 'IS', 'IS', #05/22/1983#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 22, 33, 'IS', 'IS', #12/27/2004#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 23, 34, 'IS', 'RS', #11/18/2003#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 24, 35, 'IS', 'IS', #04/21/2005#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 25, 36, 'IS', 'IS', #03/26/1967#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 26, 37, 'IS', 'RE', #09/11/1995#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 27, 38, 'IS', 'IS', #09/01/2004#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 28, 39, 'IS', 'IS', #11/28/1997#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 29, 40, 'IS', 'IS', #11/13/1985#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 30, 41, 'IS', 'IS', #11/19/1986#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 32, 43, 'IS', 'IS', #03/03/2003#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 33, 44, 'IS', 'IS', #07/05/2001#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 34, 45, 'CA', 'MO', #12/05/2005#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 35, 46, 'IS', 'SO', #12/16/2005#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 36, 47, 'IS', 'IS', #02/07/1975#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 37, 48, 'CA', 'MO', #07/29/2004#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 38, 49, 'IS', 'IS', #06/17/1969#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 39, 50, 'IS', 'RE', #09/11/1995#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 40, 51, 'IS', 'IS', #05/18/1999#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 41, 52, 'IS', 'IS', #08/06/2001#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 42, 53, 'IS', 'SO', #03/26/1990#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 43, 54, 'IS', 'IS', #03/05/1985#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 44, 55, 'IS', 'IS', #04/04/1981#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 45, 56, 'IS', 'SO', #10/08/1994#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 46, 57, 'IS', 'RS', #08/18/1997#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 47, 58, 'IS', 'IS', #08/17/1994#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 48, 59, 'IS', 'IS', #02/13/2001#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 49, 60, 'IS', 'IS', #12/07/1979#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 50, 61, 'IS', 'SO', #12/13/2003#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 51, 62, 'CA', 'TE', #06/05/2005#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, TRUE, 51, 62, 'IS', 'TA', NULL, #06/05/2005#, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 52, 63, 'IS', 'IS', #09/11/2004#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 53, 64, 'IS', 'IS', #03/23/1985#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 54, 65, 'IS', 'IS', #07/14/1996#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 55, 66, 'IS', 'IS', #02/26/1995#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 56, 67, 'IS', 'IS', #09/20/1975#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 57, 68, 'IS', 'IS', #01/23/1987#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 58, 69, 'IS', 'IS', #12/21/1991#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 59, 70, 'IS', 'IS', #07/06/1980#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 60, 71, 'CA', 'TE', #07/17/2005#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, TRUE, 60, 71, 'IS', 'TA', NULL, #07/17/2005#, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 61, 72, 'IS', 'SO', #04/19/2003#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 62, 73, 'IS', 'IS', #06/02/2003#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 63, 74, 'IS', 'IS', #04/16/1994#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 64, 75, 'IS', 'IS', #12/02/2001#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 65, 76, 'IS', 'RE', #09/11/1995#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 66, 77, 'IS', 'IS', #01/16/2005#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 67, 78, 'IS', 'IS', #10/21/2004#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 68, 79, 'IS', 'SO', #07/15/2005#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 69, 80, 'IS', 'RS', #12/23/2005#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 70, 81, 'IS', 'IS', #06/12/2004#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 71, 82, 'IS', 'IS', #01/09/1996#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 72, 83, 'IS', 'IS', #06/03/1981#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 73, 84, 'IS', 'IS', #11/03/1994#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 74, 85, 'IS', 'IS', #06/06/1998#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 75, 86, 'IS', 'IS', #01/10/1986#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 76, 87, 'IS', 'IS', #06/12/2000#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 78, 89, 'IS', 'IS', #10/22/2002#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 79, 90, 'IS', 'IS', #07/08/1997#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 80, 91, 'IS', 'IS', #12/17/1982#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 81, 92, 'CA', 'TE', #06/16/2000#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, TRUE, 81, 92, 'IS', 'TA', NULL, #06/16/2000#, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 82, 93, 'IS', 'IS', #01/23/1987#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 83, 94, 'IS', 'IS', #12/19/1994#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 84, 95, 'IS', 'IS', #11/24/1989#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 85, 96, 'IS', 'TR', #10/27/1997#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 86, 97, 'IS', 'IS', #07/21/1998#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 87, 98, 'IS', 'IS', #01/28/2000#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 88, 99, 'IS', 'IS', #09/28/1966#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 89, 100, 'IS', 'SO', #12/18/2002#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 90, 101, 'IS', 'IS', #04/10/1982#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 91, 102, 'IS', 'IS', #10/08/1994#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 92, 103, 'IS', 'RS', #07/06/2000#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 93, 104, 'IS', 'IS', #12/19/1998#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 94, 105, 'IS', 'IS', #08/22/2001#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 95, 106, 'IS', 'IS', #04/07/1999#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 96, 107, 'IS', 'IS', #10/01/1969#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 97, 108, 'CA', 'TE', #08/10/2004#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, TRUE, 97, 108, 'IS', 'TA', NULL, #08/10/2004#, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 98, 109, 'IS', 'IS', #04/06/1996#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 99, 110, 'IS', 'IS', #01/04/2003#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 100, 111, 'IS', 'IS', #11/10/2003#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 101, 112, 'IS', 'IS', #09/07/1991#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 102, 113, 'IS', 'TR', #01/22/1976#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 103, 114, 'IS', 'IS', #05/07/1998#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 104, 115, 'IS', 'IS', #10/02/1995#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 105, 116, 'IS', 'IS', #08/16/1970#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 106, 117, 'IS', 'IS', #04/23/1996#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 107, 118, 'IS', 'IS', #05/02/2000#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 108, 119, 'IS', 'IS', #05/10/1981#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 109, 120, 'IS', 'IS', #12/02/1983#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 110, 121, 'IS', 'IS', #01/01/1997#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 111, 122, 'IS', 'IS', #07/16/1994#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 112, 123, 'IS', 'IS', #07/25/1982#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 113, 124, 'CA', 'DI', #10/09/2005#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 114, 125, 'IS', 'IS', #06/05/1985#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 115, 126, 'CA', 'DE', #03/04/2005#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 116, 127, 'IS', 'IS', #03/25/1995#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 117, 128, 'IS', 'IS', #01/26/1993#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 118, 129, 'IS', 'IS', #09/10/2001#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 119, 130, 'CA', 'DI', #09/30/2003#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 120, 131, 'IS', 'IS', #11/07/1995#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 121, 132, 'IS', 'IS', #04/06/2002#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 122, 133, 'IS', 'IS', #05/03/1998#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 123, 134, 'IS', 'IS', #06/11/2005#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 124, 135, 'IS', 'IS', #04/18/1990#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 125, 136, 'IS', 'IS', #12/22/1991#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 126, 137, 'IS', 'IS', #02/09/2001#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 127, 138, 'IS', 'SO', #02/22/1990#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 128, 139, 'CA', 'MO', #03/18/2002#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 129, 140, 'CA', 'RA', #11/10/2005#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 130, 141, 'IS', 'IS', #04/14/1997#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 131, 142, 'IS', 'IS', #10/03/1999#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 132, 143, 'CA', 'DI', #06/04/1998#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 133, 144, 'IS', 'IS', #04/12/1992#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 134, 145, 'IS', 'IS', #06/09/1987#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 135, 146, 'IS', 'SO', #03/06/2002#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 136, 147, 'IS', 'TR', #03/20/2003#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 137, 148, 'IS', 'IS', #02/06/2005#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 138, 149, 'CA', 'RA', #02/20/2006#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 139, 150, 'CA', 'DI', #10/28/2005#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 140, 151, 'IS', 'IS', #07/20/2005#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 141, 152, 'IS', 'IS', #08/28/2004#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 142, 153, 'IS', 'IS', #03/20/2005#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 143, 154, 'CA', 'DI', #05/05/2005#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 144, 155, 'IS', 'IS', #11/26/1996#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 145, 156, 'IS', 'IS', #05/17/1998#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 146, 157, 'IS', 'SO', #07/28/2005#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 147, 158, 'IS', 'SO', #02/15/2004#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 148, 159, 'IS', 'IS', #01/19/2004#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 149, 160, 'IS', 'IS', #05/18/1971#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 150, 161, 'IS', 'IS', #06/09/1990#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 151, 162, 'IS', 'IS', #06/12/1990#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 152, 163, 'IS', 'IS', #01/03/1999#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 153, 164, 'IS', 'TR', #12/26/1989#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 154, 165, 'IS', 'SO', #06/18/1993#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 155, 166, 'IS', 'IS', #10/15/1989#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 156, 167, 'IS', 'IS', #04/25/1997#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 157, 168, 'IS', 'SO', #09/29/2001#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 158, 169, 'IS', 'IS', #12/05/2002#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 159, 170, 'IS', 'IS', #11/05/1990#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 160, 171, 'IS', 'IS', #02/03/2003#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 161, 172, 'IS', 'RS', #05/19/2005#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 162, 173, 'IS', 'IS', #12/15/1996#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 163, 174, 'CA', 'TR', #08/23/2002#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 164, 175, 'IS', 'IS', #03/30/1980#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 165, 176, 'IS', 'IS', #06/05/1991#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 166, 177, 'IS', 'IS', #07/20/1995#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 167, 178, 'IS', 'IS', #12/29/1996#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 168, 179, 'IS', 'IS', #12/21/2000#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 169, 180, 'IS', 'IS', #08/09/1995#, NULL, 'FC', 'Emilia-Romagna');
INSERT INTO stato_attuale VALUES (1, FALSE, 170, 181, 'IS', 'TR', #06/09/1988#, NULL, 'FC', 'Emilia-Romagna');

CREATE TABLE tb_domande_rag (
  cd_prg COUNTER CONSTRAINT PrimaryKey PRIMARY KEY,
  nr_protocollo LONG NOT NULL,
  dt_protocollo DATETIME,
  nr_norvo BYTE,
  nr_collegio LONG,
  fl_iscritto_elenco YESNO,
  cd_tipo_domanda TEXT(2),
  cd_mot_evento TEXT(2),
  cd_matr LONG,
  dt_dec_canc DATETIME,
  ds_motivo TEXT(60));

INSERT INTO tb_domande_rag (nr_protocollo, dt_protocollo, nr_norvo, nr_collegio, fl_iscritto_elenco, cd_tipo_domanda, cd_mot_evento, cd_matr, dt_dec_canc, ds_motivo) VALUES (1445, #01/01/1996#, 1, 25, FALSE, 'IS', 'SO', 14, #02/05/1996#, 'Richiesta dell''iscritto');
INSERT INTO tb_domande_rag (nr_protocollo, dt_protocollo, nr_norvo, nr_collegio, fl_iscritto_elenco, cd_tipo_domanda, cd_mot_evento, cd_matr, dt_dec_canc, ds_motivo) VALUES (1466, #11/11/2005#, 1, 46, FALSE, 'IS', 'SO', 35, #12/16/2005#, 'Richiesta dell''iscritto');
INSERT INTO tb_domande_rag (nr_protocollo, dt_protocollo, nr_norvo, nr_collegio, fl_iscritto_elenco, cd_tipo_domanda, cd_mot_evento, cd_matr, dt_dec_canc, ds_motivo) VALUES (1473, #02/19/1990#, 1, 53, FALSE, 'IS', 'SO', 42, #03/26/1990#, 'Richiesta dell''iscritto');
INSERT INTO tb_domande_rag (nr_protocollo, dt_protocollo, nr_norvo, nr_collegio, fl_iscritto_elenco, cd_tipo_domanda, cd_mot_evento, cd_matr, dt_dec_canc, ds_motivo) VALUES (1476, #09/03/1994#, 1, 56, FALSE, 'IS', 'SO', 45, #10/08/1994#, 'Richiesta dell''iscritto');
INSERT INTO tb_domande_rag (nr_protocollo, dt_protocollo, nr_norvo, nr_collegio, fl_iscritto_elenco, cd_tipo_domanda, cd_mot_evento, cd_matr, dt_dec_canc, ds_motivo) VALUES (1481, #11/08/2003#, 1, 61, FALSE, 'IS', 'SO', 50, #12/13/2003#, 'Richiesta dell''iscritto');
INSERT INTO tb_domande_rag (nr_protocollo, dt_protocollo, nr_norvo, nr_collegio, fl_iscritto_elenco, cd_tipo_domanda, cd_mot_evento, cd_matr, dt_dec_canc, ds_motivo) VALUES (1492, #03/15/2003#, 1, 72, FALSE, 'IS', 'SO', 61, #04/19/2003#, 'Richiesta dell''iscritto');

CREATE TABLE status_praticante (
  cd_prg COUNTER CONSTRAINT PrimaryKey PRIMARY KEY,
  cd_matr LONG NOT NULL,
  cd_evento TEXT(2) NOT NULL,
  cd_tip_evento TEXT(2) NOT NULL,
  cd_mot_evento TEXT(2),
  dt_evento DATETIME,
  dt_delibera DATETIME,
  dt_finale DATETIME,
  nr_protocollo TEXT(20));
CREATE INDEX Storia ON status_praticante (cd_matr, dt_evento);
ALTER TABLE status_praticante ADD CONSTRAINT praticante_status
  FOREIGN KEY (cd_matr) REFERENCES praticante (cd_matr) ON DELETE CASCADE;

INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (1, 'PR', 'IS', 'IS', #02/01/2004#, #01/22/2004#, NULL, 'P/101');
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (2, 'PR', 'IS', 'IS', #01/30/2001#, #01/20/2001#, NULL, 'P/102');
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (3, 'PR', 'IS', 'IS', #07/09/2003#, #06/29/2003#, NULL, 'P/103');
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (4, 'PR', 'IS', 'IS', #04/09/2004#, #03/30/2004#, NULL, 'P/104');
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (4, 'PR', 'RE', 'RE', #10/16/2004#, #10/28/2004#, #10/08/2004#, NULL);
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (5, 'PR', 'IS', 'IS', #04/02/2004#, #03/23/2004#, NULL, 'P/105');
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (6, 'PR', 'IS', 'IS', #01/14/2001#, #01/04/2001#, NULL, 'P/106');
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (7, 'PR', 'IS', 'IS', #02/10/2002#, #01/31/2002#, NULL, 'P/107');
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (8, 'PR', 'IS', 'IS', #08/13/2004#, #08/03/2004#, NULL, 'P/108');
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (8, 'PR', 'RE', 'RE', #02/19/2005#, #03/03/2005#, #02/11/2005#, NULL);
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (9, 'PR', 'IS', 'IS', #04/15/2005#, #04/05/2005#, NULL, 'P/109');
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (9, 'PR', 'IN', '02', #12/21/2005#, NULL, #03/21/2006#, NULL);
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (10, 'PR', 'IS', 'IS', #05/15/2001#, #05/05/2001#, NULL, 'P/110');
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (11, 'PR', 'IS', 'IS', #10/19/2003#, #10/09/2003#, NULL, 'P/111');
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (12, 'PR', 'IS', 'IS', #06/29/2004#, #06/19/2004#, NULL, 'P/112');
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (12, 'PR', 'RE', 'RE', #01/05/2005#, #01/17/2005#, #12/28/2004#, NULL);
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (13, 'PR', 'IS', 'IS', #10/05/2005#, #09/25/2005#, NULL, 'P/113');
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (14, 'PR', 'IS', 'IS', #07/12/2002#, #07/02/2002#, NULL, 'P/114');
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (15, 'PR', 'IS', 'IS', #12/02/2005#, #11/22/2005#, NULL, 'P/115');
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (15, 'PR', 'CA', 'DI', #11/17/2006#, NULL, NULL, NULL);
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (16, 'PR', 'IS', 'IS', #05/16/2002#, #05/06/2002#, NULL, 'P/116');
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (16, 'PR', 'RE', 'RE', #11/22/2002#, #12/04/2002#, #11/14/2002#, NULL);
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (17, 'PR', 'IS', 'IS', #09/15/2001#, #09/05/2001#, NULL, 'P/117');
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (18, 'PR', 'IS', 'IS', #11/26/2001#, #11/16/2001#, NULL, 'P/118');
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (18, 'PR', 'IN', '02', #08/03/2002#, NULL, NULL, NULL);
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (19, 'PR', 'IS', 'IS', #07/14/2005#, #07/04/2005#, NULL, 'P/119');
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (20, 'PR', 'IS', 'IS', #02/13/2004#, #02/03/2004#, NULL, 'P/120');
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (20, 'PR', 'RE', 'RE', #08/21/2004#, #09/02/2004#, #08/13/2004#, NULL);
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (21, 'PR', 'IS', 'IS', #12/02/2005#, #11/22/2005#, NULL, 'P/121');
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (22, 'PR', 'IS', 'IS', #03/05/2004#, #02/24/2004#, NULL, 'P/122');
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (23, 'PR', 'IS', 'IS', #10/18/2004#, #10/08/2004#, NULL, 'P/123');
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (24, 'PR', 'IS', 'IS', #11/01/2003#, #10/22/2003#, NULL, 'P/124');
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (24, 'PR', 'RE', 'RE', #05/09/2004#, #05/21/2004#, #05/01/2004#, NULL);
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (25, 'PR', 'IS', 'IS', #11/20/2005#, #11/10/2005#, NULL, 'P/125');
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (26, 'PR', 'IS', 'IS', #11/23/2004#, #11/13/2004#, NULL, 'P/126');
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (26, 'PR', 'CA', 'DI', #11/08/2005#, NULL, NULL, NULL);
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (27, 'PR', 'IS', 'IS', #12/26/2005#, #12/16/2005#, NULL, 'P/127');
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (27, 'PR', 'IN', '01', #09/02/2006#, NULL, #12/01/2006#, NULL);
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (28, 'PR', 'IS', 'IS', #08/01/2002#, #07/22/2002#, NULL, 'P/128');
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (28, 'PR', 'RE', 'RE', #02/07/2003#, #02/19/2003#, #01/30/2003#, NULL);
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (28, 'PR', 'CA', 'DI', #07/17/2003#, NULL, NULL, NULL);
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (29, 'PR', 'IS', 'IS', #11/10/2001#, #10/31/2001#, NULL, 'P/129');
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (30, 'PR', 'IS', 'IS', #02/25/2003#, #02/15/2003#, NULL, 'P/130');
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (30, 'PR', 'CA', 'DI', #02/10/2004#, NULL, NULL, NULL);
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (31, 'PR', 'IS', 'IS', #03/21/2005#, #03/11/2005#, NULL, 'P/131');
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (31, 'PR', 'CA', 'DI', #03/06/2006#, NULL, NULL, NULL);
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (32, 'PR', 'IS', 'IS', #08/22/2001#, #08/12/2001#, NULL, 'P/132');
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (32, 'PR', 'RE', 'RE', #02/28/2002#, #03/12/2002#, #02/20/2002#, NULL);
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (33, 'PR', 'IS', 'IS', #06/18/2003#, #06/08/2003#, NULL, 'P/133');
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (33, 'PR', 'CA', 'DI', #06/02/2004#, NULL, NULL, NULL);
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (34, 'PR', 'IS', 'IS', #09/14/2002#, #09/04/2002#, NULL, 'P/134');
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (35, 'PR', 'IS', 'IS', #11/24/2002#, #11/14/2002#, NULL, 'P/135');
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (36, 'PR', 'IS', 'IS', #08/05/2001#, #07/26/2001#, NULL, 'P/136');
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (36, 'PR', 'RE', 'RE', #02/11/2002#, #02/23/2002#, #02/03/2002#, NULL);
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (36, 'PR', 'IN', '03', #04/12/2002#, NULL, NULL, NULL);
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (37, 'PR', 'IS', 'IS', #11/27/2005#, #11/17/2005#, NULL, 'P/137');
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (37, 'PR', 'CA', 'DI', #11/12/2006#, NULL, NULL, NULL);
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (38, 'PR', 'IS', 'IS', #11/12/2001#, #11/02/2001#, NULL, 'P/138');
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (38, 'PR', 'CA', 'DI', #10/28/2002#, NULL, NULL, NULL);
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (39, 'PR', 'IS', 'IS', #09/16/2002#, #09/06/2002#, NULL, 'P/139');
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (40, 'PR', 'IS', 'IS', #03/02/2005#, #02/20/2005#, NULL, 'P/140');
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (40, 'PR', 'RE', 'RE', #09/08/2005#, #09/20/2005#, #08/31/2005#, NULL);
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (40, 'PR', 'CA', 'DI', #02/15/2006#, NULL, NULL, NULL);
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (41, 'PR', 'IS', 'IS', #11/14/2004#, #11/04/2004#, NULL, 'P/141');
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (42, 'PR', 'IS', 'IS', #06/21/2005#, #06/11/2005#, NULL, 'P/142');
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (43, 'PR', 'IS', 'IS', #11/12/2003#, #11/02/2003#, NULL, 'P/143');
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (44, 'PR', 'IS', 'IS', #02/01/2005#, #01/22/2005#, NULL, 'P/144');
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (44, 'PR', 'RE', 'RE', #08/10/2005#, #08/22/2005#, #08/02/2005#, NULL);
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (45, 'PR', 'IS', 'IS', #07/24/2004#, #07/14/2004#, NULL, 'P/145');
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (45, 'PR', 'IN', '03', #03/31/2005#, NULL, #06/29/2005#, NULL);
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (46, 'PR', 'IS', 'IS', #06/10/2005#, #05/31/2005#, NULL, 'P/146');
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (47, 'PR', 'IS', 'IS', #10/25/2005#, #10/15/2005#, NULL, 'P/147');
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (48, 'PR', 'IS', 'IS', #12/14/2004#, #12/04/2004#, NULL, 'P/148');
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (48, 'PR', 'RE', 'RE', #06/22/2005#, #07/04/2005#, #06/14/2005#, NULL);
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (49, 'PR', 'IS', 'IS', #01/31/2005#, #01/21/2005#, NULL, 'P/149');
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (50, 'PR', 'IS', 'IS', #02/07/2003#, #01/28/2003#, NULL, 'P/150');
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (51, 'PR', 'IS', 'IS', #04/01/2003#, #03/22/2003#, NULL, 'P/151');
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (52, 'PR', 'IS', 'IS', #07/21/2002#, #07/11/2002#, NULL, 'P/152');
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (52, 'PR', 'RE', 'RE', #01/27/2003#, #02/08/2003#, #01/19/2003#, NULL);
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (53, 'PR', 'IS', 'IS', #08/04/2003#, #07/25/2003#, NULL, 'P/153');
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (54, 'PR', 'IS', 'IS', #08/20/2004#, #08/10/2004#, NULL, 'P/154');
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (54, 'PR', 'IN', '01', #04/27/2005#, NULL, NULL, NULL);
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (55, 'PR', 'IS', 'IS', #10/31/2005#, #10/21/2005#, NULL, 'P/155');
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (56, 'PR', 'IS', 'IS', #02/12/2001#, #02/02/2001#, NULL, 'P/156');
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (56, 'PR', 'RE', 'RE', #08/21/2001#, #09/02/2001#, #08/13/2001#, NULL);
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (57, 'PR', 'IS', 'IS', #04/14/2002#, #04/04/2002#, NULL, 'P/157');
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (57, 'PR', 'CA', 'DI', #03/30/2003#, NULL, NULL, NULL);
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (58, 'PR', 'IS', 'IS', #08/23/2002#, #08/13/2002#, NULL, 'P/158');
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (59, 'PR', 'IS', 'IS', #10/01/2001#, #09/21/2001#, NULL, 'P/159');
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (60, 'PR', 'IS', 'IS', #11/19/2005#, #11/09/2005#, NULL, 'P/160');
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (61, 'PR', 'IS', 'IS', #02/04/2001#, #01/25/2001#, NULL, 'P/161');
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (61, 'PR', 'CA', 'DI', #01/20/2002#, NULL, NULL, NULL);
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (62, 'PR', 'IS', 'IS', #11/07/2003#, #10/28/2003#, NULL, 'P/162');
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (63, 'PR', 'IS', 'IS', #01/08/2001#, #12/29/2000#, NULL, 'P/163');
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (63, 'PR', 'IN', '02', #09/15/2001#, NULL, #12/14/2001#, NULL);
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (64, 'PR', 'IS', 'IS', #08/29/2004#, #08/19/2004#, NULL, 'P/164');
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (64, 'PR', 'RE', 'RE', #03/07/2005#, #03/19/2005#, #02/27/2005#, NULL);
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (65, 'PR', 'IS', 'IS', #12/24/2002#, #12/14/2002#, NULL, 'P/165');
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (66, 'PR', 'IS', 'IS', #05/12/2005#, #05/02/2005#, NULL, 'P/166');
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (67, 'PR', 'IS', 'IS', #09/21/2003#, #09/11/2003#, NULL, 'P/167');
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (67, 'PR', 'CA', 'DI', #09/05/2004#, NULL, NULL, NULL);
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (68, 'PR', 'IS', 'IS', #11/04/2005#, #10/25/2005#, NULL, 'P/168');
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (69, 'PR', 'IS', 'IS', #03/04/2001#, #02/22/2001#, NULL, 'P/169');
INSERT INTO status_praticante (cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_delibera, dt_finale, nr_protocollo) VALUES (70, 'PR', 'IS', 'IS', #07/20/2005#, #07/10/2005#, NULL, 'P/170');

CREATE TABLE Status_Prof_Praticante (
  cd_prg COUNTER CONSTRAINT PrimaryKey PRIMARY KEY,
  cd_matr LONG NOT NULL,
  Cognome TEXT(40),
  Nome TEXT(40),
  nr_collegio LONG,
  Data_Cambio DATETIME);

INSERT INTO Status_Prof_Praticante (cd_matr, Cognome, Nome, nr_collegio, Data_Cambio) VALUES (1, 'Gallo', 'Luigi', 145, #02/01/2004#);
INSERT INTO Status_Prof_Praticante (cd_matr, Cognome, Nome, nr_collegio, Data_Cambio) VALUES (2, 'Testa', 'Marta', 158, #01/30/2001#);
INSERT INTO Status_Prof_Praticante (cd_matr, Cognome, Nome, nr_collegio, Data_Cambio) VALUES (3, 'Ferretti', 'Luigi', 13, #07/09/2003#);
INSERT INTO Status_Prof_Praticante (cd_matr, Cognome, Nome, nr_collegio, Data_Cambio) VALUES (4, 'Romano', 'Luigi', 180, #04/09/2004#);
INSERT INTO Status_Prof_Praticante (cd_matr, Cognome, Nome, nr_collegio, Data_Cambio) VALUES (5, 'Gallo', 'Luigi', 152, #04/02/2004#);
INSERT INTO Status_Prof_Praticante (cd_matr, Cognome, Nome, nr_collegio, Data_Cambio) VALUES (6, 'Serra', 'Luigi', 172, #01/14/2001#);
INSERT INTO Status_Prof_Praticante (cd_matr, Cognome, Nome, nr_collegio, Data_Cambio) VALUES (7, 'Leone', 'Anna', 65, #02/10/2002#);
INSERT INTO Status_Prof_Praticante (cd_matr, Cognome, Nome, nr_collegio, Data_Cambio) VALUES (8, 'Ferretti', 'Anna', 126, #08/13/2004#);
INSERT INTO Status_Prof_Praticante (cd_matr, Cognome, Nome, nr_collegio, Data_Cambio) VALUES (9, 'Vitali', 'Luigi', 65, #04/15/2005#);
INSERT INTO Status_Prof_Praticante (cd_matr, Cognome, Nome, nr_collegio, Data_Cambio) VALUES (10, 'Parisi', 'Marta', 59, #05/15/2001#);
INSERT INTO Status_Prof_Praticante (cd_matr, Cognome, Nome, nr_collegio, Data_Cambio) VALUES (11, 'Fontana', 'Anna', 70, #10/19/2003#);
INSERT INTO Status_Prof_Praticante (cd_matr, Cognome, Nome, nr_collegio, Data_Cambio) VALUES (12, 'D''Angelo', 'Carlo', 171, #06/29/2004#);
INSERT INTO Status_Prof_Praticante (cd_matr, Cognome, Nome, nr_collegio, Data_Cambio) VALUES (13, 'Bellini', 'Anna', 28, #10/05/2005#);
INSERT INTO Status_Prof_Praticante (cd_matr, Cognome, Nome, nr_collegio, Data_Cambio) VALUES (14, 'Romano', 'Luigi', 103, #07/12/2002#);
INSERT INTO Status_Prof_Praticante (cd_matr, Cognome, Nome, nr_collegio, Data_Cambio) VALUES (15, 'Gentile', 'Luigi', 68, #12/02/2005#);
INSERT INTO Status_Prof_Praticante (cd_matr, Cognome, Nome, nr_collegio, Data_Cambio) VALUES (16, 'Casadei', 'Carlo', 59, #05/16/2002#);
INSERT INTO Status_Prof_Praticante (cd_matr, Cognome, Nome, nr_collegio, Data_Cambio) VALUES (17, 'Rinaldi', 'Marta', 87, #09/15/2001#);
INSERT INTO Status_Prof_Praticante (cd_matr, Cognome, Nome, nr_collegio, Data_Cambio) VALUES (18, 'Galli', 'Luigi', 43, #11/26/2001#);
INSERT INTO Status_Prof_Praticante (cd_matr, Cognome, Nome, nr_collegio, Data_Cambio) VALUES (19, 'Barone', 'Carlo', 114, #07/14/2005#);
INSERT INTO Status_Prof_Praticante (cd_matr, Cognome, Nome, nr_collegio, Data_Cambio) VALUES (20, 'Sanna', 'Luigi', 25, #02/13/2004#);
INSERT INTO Status_Prof_Praticante (cd_matr, Cognome, Nome, nr_collegio, Data_Cambio) VALUES (21, 'Messina', 'Luigi', 153, #12/02/2005#);
INSERT INTO Status_Prof_Praticante (cd_matr, Cognome, Nome, nr_collegio, Data_Cambio) VALUES (22, 'Orlando', 'Marta', 50, #03/05/2004#);
INSERT INTO Status_Prof_Praticante (cd_matr, Cognome, Nome, nr_collegio, Data_Cambio) VALUES (23, 'Barone', 'Anna', 94, #10/18/2004#);
INSERT INTO Status_Prof_Praticante (cd_matr, Cognome, Nome, nr_collegio, Data_Cambio) VALUES (24, 'Vitali', 'Carlo', 19, #11/01/2003#);
INSERT INTO Status_Prof_Praticante (cd_matr, Cognome, Nome, nr_collegio, Data_Cambio) VALUES (25, 'Dall''Ò', 'Carlo', 93, #11/20/2005#);
INSERT INTO Status_Prof_Praticante (cd_matr, Cognome, Nome, nr_collegio, Data_Cambio) VALUES (26, 'Marino', 'Luigi', 117, #11/23/2004#);
INSERT INTO Status_Prof_Praticante (cd_matr, Cognome, Nome, nr_collegio, Data_Cambio) VALUES (27, 'Bruno', 'Anna', 62, #12/26/2005#);
INSERT INTO Status_Prof_Praticante (cd_matr, Cognome, Nome, nr_collegio, Data_Cambio) VALUES (28, 'Zanfrà', 'Marta', 68, #08/01/2002#);
INSERT INTO Status_Prof_Praticante (cd_matr, Cognome, Nome, nr_collegio, Data_Cambio) VALUES (29, 'Lombardo', 'Marta', 68, #11/10/2001#);
INSERT INTO Status_Prof_Praticante (cd_matr, Cognome, Nome, nr_collegio, Data_Cambio) VALUES (30, 'Sartori', 'Luigi', 25, #02/25/2003#);
INSERT INTO Status_Prof_Praticante (cd_matr, Cognome, Nome, nr_collegio, Data_Cambio) VALUES (31, 'Muscarà', 'Luigi', 58, #03/21/2005#);
INSERT INTO Status_Prof_Praticante (cd_matr, Cognome, Nome, nr_collegio, Data_Cambio) VALUES (32, 'Greco', 'Anna', 124, #08/22/2001#);
INSERT INTO Status_Prof_Praticante (cd_matr, Cognome, Nome, nr_collegio, Data_Cambio) VALUES (33, 'Gentile', 'Luigi', 80, #06/18/2003#);
INSERT INTO Status_Prof_Praticante (cd_matr, Cognome, Nome, nr_collegio, Data_Cambio) VALUES (34, 'Bellini', 'Marta', 17, #09/14/2002#);
INSERT INTO Status_Prof_Praticante (cd_matr, Cognome, Nome, nr_collegio, Data_Cambio) VALUES (35, 'Santoro', 'Marta', 140, #11/24/2002#);
INSERT INTO Status_Prof_Praticante (cd_matr, Cognome, Nome, nr_collegio, Data_Cambio) VALUES (36, 'Caruso', 'Luigi', 153, #08/05/2001#);
INSERT INTO Status_Prof_Praticante (cd_matr, Cognome, Nome, nr_collegio, Data_Cambio) VALUES (37, 'Conti', 'Anna', 168, #11/27/2005#);
INSERT INTO Status_Prof_Praticante (cd_matr, Cognome, Nome, nr_collegio, Data_Cambio) VALUES (38, 'Sanna', 'Marta', 34, #11/12/2001#);
INSERT INTO Status_Prof_Praticante (cd_matr, Cognome, Nome, nr_collegio, Data_Cambio) VALUES (39, 'Valbonesi', 'Anna', 157, #09/16/2002#);
INSERT INTO Status_Prof_Praticante (cd_matr, Cognome, Nome, nr_collegio, Data_Cambio) VALUES (40, 'Longo', 'Carlo', 83, #03/02/2005#);
INSERT INTO Status_Prof_Praticante (cd_matr, Cognome, Nome, nr_collegio, Data_Cambio) VALUES (41, 'De Santis', 'Anna', 150, #11/14/2004#);
INSERT INTO Status_Prof_Praticante (cd_matr, Cognome, Nome, nr_collegio, Data_Cambio) VALUES (42, 'Farina', 'Marta', 143, #06/21/2005#);
INSERT INTO Status_Prof_Praticante (cd_matr, Cognome, Nome, nr_collegio, Data_Cambio) VALUES (43, 'Bernardi', 'Luigi', 66, #11/12/2003#);
INSERT INTO Status_Prof_Praticante (cd_matr, Cognome, Nome, nr_collegio, Data_Cambio) VALUES (44, 'Pagano', 'Anna', 156, #02/01/2005#);
INSERT INTO Status_Prof_Praticante (cd_matr, Cognome, Nome, nr_collegio, Data_Cambio) VALUES (45, 'Ravaioli', 'Marta', 15, #07/24/2004#);
INSERT INTO Status_Prof_Praticante (cd_matr, Cognome, Nome, nr_collegio, Data_Cambio) VALUES (46, 'Pellegrini', 'Marta', 47, #06/10/2005#);
INSERT INTO Status_Prof_Praticante (cd_matr, Cognome, Nome, nr_collegio, Data_Cambio) VALUES (47, 'Ferri', 'Luigi', 124, #10/25/2005#);
INSERT INTO Status_Prof_Praticante (cd_matr, Cognome, Nome, nr_collegio, Data_Cambio) VALUES (48, 'Marchetti', 'Anna', 94, #12/14/2004#);
INSERT INTO Status_Prof_Praticante (cd_matr, Cognome, Nome, nr_collegio, Data_Cambio) VALUES (49, 'Fabbri', 'Carlo', 142, #01/31/2005#);
INSERT INTO Status_Prof_Praticante (cd_matr, Cognome, Nome, nr_collegio, Data_Cambio) VALUES (50, 'Silvestri', 'Anna', 70, #02/07/2003#);
INSERT INTO Status_Prof_Praticante (cd_matr, Cognome, Nome, nr_collegio, Data_Cambio) VALUES (51, 'Pellegrini', 'Luigi', 66, #04/01/2003#);
INSERT INTO Status_Prof_Praticante (cd_matr, Cognome, Nome, nr_collegio, Data_Cambio) VALUES (52, 'Negri', 'Anna', 120, #07/21/2002#);
INSERT INTO Status_Prof_Praticante (cd_matr, Cognome, Nome, nr_collegio, Data_Cambio) VALUES (53, 'Gallo', 'Luigi', 26, #08/04/2003#);
INSERT INTO Status_Prof_Praticante (cd_matr, Cognome, Nome, nr_collegio, Data_Cambio) VALUES (54, 'Battaglia', 'Anna', 55, #08/20/2004#);
INSERT INTO Status_Prof_Praticante (cd_matr, Cognome, Nome, nr_collegio, Data_Cambio) VALUES (55, 'Barbieri', 'Carlo', 125, #10/31/2005#);
INSERT INTO Status_Prof_Praticante (cd_matr, Cognome, Nome, nr_collegio, Data_Cambio) VALUES (56, 'Leone', 'Marta', 89, #02/12/2001#);
INSERT INTO Status_Prof_Praticante (cd_matr, Cognome, Nome, nr_collegio, Data_Cambio) VALUES (57, 'Serra', 'Marta', 144, #04/14/2002#);
INSERT INTO Status_Prof_Praticante (cd_matr, Cognome, Nome, nr_collegio, Data_Cambio) VALUES (58, 'Bandini', 'Carlo', 145, #08/23/2002#);
INSERT INTO Status_Prof_Praticante (cd_matr, Cognome, Nome, nr_collegio, Data_Cambio) VALUES (59, 'Martini', 'Marta', 181, #10/01/2001#);
INSERT INTO Status_Prof_Praticante (cd_matr, Cognome, Nome, nr_collegio, Data_Cambio) VALUES (60, 'Sanna', 'Carlo', 113, #11/19/2005#);
INSERT INTO Status_Prof_Praticante (cd_matr, Cognome, Nome, nr_collegio, Data_Cambio) VALUES (61, 'Marini', 'Carlo', 110, #02/04/2001#);
INSERT INTO Status_Prof_Praticante (cd_matr, Cognome, Nome, nr_collegio, Data_Cambio) VALUES (62, 'Barone', 'Anna', 114, #11/07/2003#);
INSERT INTO Status_Prof_Praticante (cd_matr, Cognome, Nome, nr_collegio, Data_Cambio) VALUES (63, 'Ruggiero', 'Carlo', 153, #01/08/2001#);
INSERT INTO Status_Prof_Praticante (cd_matr, Cognome, Nome, nr_collegio, Data_Cambio) VALUES (64, 'Marchetti', 'Marta', 106, #08/29/2004#);
INSERT INTO Status_Prof_Praticante (cd_matr, Cognome, Nome, nr_collegio, Data_Cambio) VALUES (65, 'Bianchi', 'Marta', 71, #12/24/2002#);
INSERT INTO Status_Prof_Praticante (cd_matr, Cognome, Nome, nr_collegio, Data_Cambio) VALUES (66, 'Sala', 'Luigi', 13, #05/12/2005#);
INSERT INTO Status_Prof_Praticante (cd_matr, Cognome, Nome, nr_collegio, Data_Cambio) VALUES (67, 'Riva', 'Anna', 65, #09/21/2003#);
INSERT INTO Status_Prof_Praticante (cd_matr, Cognome, Nome, nr_collegio, Data_Cambio) VALUES (68, 'Carbone', 'Marta', 36, #11/04/2005#);
INSERT INTO Status_Prof_Praticante (cd_matr, Cognome, Nome, nr_collegio, Data_Cambio) VALUES (69, 'Sorrentino', 'Marta', 104, #03/04/2001#);
INSERT INTO Status_Prof_Praticante (cd_matr, Cognome, Nome, nr_collegio, Data_Cambio) VALUES (70, 'Montanari', 'Marta', 86, #07/20/2005#);

CREATE TABLE tb_domande_prat (
  cd_prg COUNTER CONSTRAINT PrimaryKey PRIMARY KEY,
  nr_protocollo TEXT(20),
  dt_protocollo DATETIME,
  nr_collegio LONG,
  st_istruttoria TEXT(2),
  cd_matr LONG);

INSERT INTO tb_domande_prat (nr_protocollo, dt_protocollo, nr_collegio, st_istruttoria, cd_matr) VALUES ('P/101', #01/07/2004#, 1, 'OK', 1);
INSERT INTO tb_domande_prat (nr_protocollo, dt_protocollo, nr_collegio, st_istruttoria, cd_matr) VALUES ('P/106', #12/20/2000#, 6, 'NI', 6);
INSERT INTO tb_domande_prat (nr_protocollo, dt_protocollo, nr_collegio, st_istruttoria, cd_matr) VALUES ('P/111', #09/24/2003#, 11, 'OK', 11);
INSERT INTO tb_domande_prat (nr_protocollo, dt_protocollo, nr_collegio, st_istruttoria, cd_matr) VALUES ('P/116', #04/21/2002#, 16, 'OK', 16);
INSERT INTO tb_domande_prat (nr_protocollo, dt_protocollo, nr_collegio, st_istruttoria, cd_matr) VALUES ('P/121', #11/07/2005#, 21, 'OK', 21);
INSERT INTO tb_domande_prat (nr_protocollo, dt_protocollo, nr_collegio, st_istruttoria, cd_matr) VALUES ('P/126', #10/29/2004#, 26, 'OK', 26);
INSERT INTO tb_domande_prat (nr_protocollo, dt_protocollo, nr_collegio, st_istruttoria, cd_matr) VALUES ('P/131', #02/24/2005#, 31, 'OK', 31);
INSERT INTO tb_domande_prat (nr_protocollo, dt_protocollo, nr_collegio, st_istruttoria, cd_matr) VALUES ('P/136', #07/11/2001#, 36, 'OK', 36);
INSERT INTO tb_domande_prat (nr_protocollo, dt_protocollo, nr_collegio, st_istruttoria, cd_matr) VALUES ('P/141', #10/20/2004#, 41, 'NI', 41);
INSERT INTO tb_domande_prat (nr_protocollo, dt_protocollo, nr_collegio, st_istruttoria, cd_matr) VALUES ('P/146', #05/16/2005#, 46, 'NI', 46);
INSERT INTO tb_domande_prat (nr_protocollo, dt_protocollo, nr_collegio, st_istruttoria, cd_matr) VALUES ('P/151', #03/07/2003#, 51, 'OK', 51);
INSERT INTO tb_domande_prat (nr_protocollo, dt_protocollo, nr_collegio, st_istruttoria, cd_matr) VALUES ('P/156', #01/18/2001#, 56, 'OK', 56);
INSERT INTO tb_domande_prat (nr_protocollo, dt_protocollo, nr_collegio, st_istruttoria, cd_matr) VALUES ('P/161', #01/10/2001#, 61, 'OK', 61);
INSERT INTO tb_domande_prat (nr_protocollo, dt_protocollo, nr_collegio, st_istruttoria, cd_matr) VALUES ('P/166', #04/17/2005#, 66, 'OK', 66);
