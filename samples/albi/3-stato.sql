-- Storia degli eventi di ogni iscritto. AL è l'albo, EL l'elenco; la riga di stato_attuale deriva dagli eventi.
CREATE TABLE motivo_evento (
  cd_evento TEXT(2) NOT NULL,
  cd_tip_evento TEXT(2) NOT NULL,
  cd_mot_evento TEXT(2) NOT NULL,
  ds_mot_evento TEXT(60),
  CONSTRAINT PrimaryKey PRIMARY KEY (cd_evento, cd_tip_evento, cd_mot_evento));

CREATE TABLE status_ragioniere (
  cd_prg COUNTER CONSTRAINT PrimaryKey PRIMARY KEY,
  cd_matr LONG NOT NULL,
  cd_evento TEXT(2) NOT NULL,
  cd_tip_evento TEXT(2) NOT NULL,
  cd_mot_evento TEXT(2) NOT NULL,
  dt_evento DATETIME,
  nr_evento LONG DEFAULT 0,
  fl_iscritto_elenco YESNO,
  nr_norvo SHORT DEFAULT 1,
  nr_collegio LONG DEFAULT 0,
  nr_protocollo TEXT(20),
  dt_dec_canc DATETIME,
  dt_delibera DATETIME,
  dt_finale DATETIME,
  cd_sg_prov_collegio TEXT(2),
  reg_collegio TEXT(30),
  nr_sezione LONG,
  [Set] TEXT(5),
  dt_fine_sosp DATETIME,
  nr_sospensione LONG DEFAULT 0,
  fl_sosp_futura YESNO);
CREATE INDEX Storia ON status_ragioniere (cd_matr, dt_evento DESC, nr_evento DESC);
CREATE INDEX Protocollo ON status_ragioniere (nr_protocollo) WITH IGNORE NULL;

CREATE TABLE stato_attuale (
  nr_norvo SHORT NOT NULL,
  fl_iscritto_elenco YESNO,
  cd_matr LONG NOT NULL,
  nr_collegio LONG,
  cd_tip_evento_al TEXT(2),
  cd_mot_evento_al TEXT(2),
  dt_evento_al DATETIME,
  dt_evento_el DATETIME,
  cd_sg_prov_collegio TEXT(2),
  reg_collegio TEXT(30),
  nr_sezione LONG,
  [Set] TEXT(5),
  CONSTRAINT PrimaryKey PRIMARY KEY (nr_norvo, fl_iscritto_elenco, cd_matr));
CREATE INDEX Matricola ON stato_attuale (cd_matr);

-- Domande degli iscritti.
CREATE TABLE tb_domande_rag (
  cd_prg COUNTER CONSTRAINT PrimaryKey PRIMARY KEY,
  nr_protocollo TEXT(20) NOT NULL,
  dt_protocollo DATETIME,
  nr_norvo SHORT DEFAULT 1,
  nr_collegio LONG,
  fl_iscritto_elenco YESNO,
  cd_tipo_domanda TEXT(2),
  cd_mot_evento TEXT(2),
  cd_matr LONG,
  dt_dec_canc DATETIME,
  ds_motivo TEXT(120),
  dt_istruttoria DATETIME,
  dt_fine_sosp DATETIME);
CREATE INDEX Protocollo ON tb_domande_rag (nr_protocollo, fl_iscritto_elenco);

ALTER TABLE status_ragioniere ADD CONSTRAINT motivo_evento_status
  FOREIGN KEY (cd_evento, cd_tip_evento, cd_mot_evento)
  REFERENCES motivo_evento (cd_evento, cd_tip_evento, cd_mot_evento) ON UPDATE CASCADE;
ALTER TABLE status_ragioniere ADD CONSTRAINT ragioniere_status
  FOREIGN KEY (cd_matr) REFERENCES ragioniere (cd_matr) ON UPDATE CASCADE ON DELETE CASCADE;
ALTER TABLE stato_attuale ADD CONSTRAINT ragioniere_stato_attuale
  FOREIGN KEY (cd_matr) REFERENCES ragioniere (cd_matr) ON UPDATE CASCADE ON DELETE CASCADE;

INSERT INTO motivo_evento VALUES ('AL', 'IS', 'IS', 'Iscrizione');
INSERT INTO motivo_evento VALUES ('AL', 'IS', 'RE', 'Reiscrizione');
INSERT INTO motivo_evento VALUES ('AL', 'IS', 'TR', 'Iscrizione per trasferimento');
INSERT INTO motivo_evento VALUES ('AL', 'IS', 'TE', 'Iscrizione per passaggio dall''elenco');
INSERT INTO motivo_evento VALUES ('AL', 'IS', 'PR', 'Iscrizione dal registro dei praticanti');
INSERT INTO motivo_evento VALUES ('AL', 'IS', 'PC', 'Iscrizione per provvedimento del consiglio');
INSERT INTO motivo_evento VALUES ('AL', 'IS', 'SO', 'Sospensione');
INSERT INTO motivo_evento VALUES ('AL', 'IS', 'RS', 'Revoca della sospensione');
INSERT INTO motivo_evento VALUES ('AL', 'CA', 'DI', 'Cancellazione per dimissioni');
INSERT INTO motivo_evento VALUES ('AL', 'CA', 'DE', 'Cancellazione per decesso');
INSERT INTO motivo_evento VALUES ('AL', 'CA', 'MO', 'Cancellazione per morosità');
INSERT INTO motivo_evento VALUES ('AL', 'CA', 'TR', 'Cancellazione per trasferimento');
INSERT INTO motivo_evento VALUES ('AL', 'CA', 'TE', 'Cancellazione per passaggio all''elenco');
INSERT INTO motivo_evento VALUES ('AL', 'CA', 'RA', 'Radiazione');
INSERT INTO motivo_evento VALUES ('EL', 'IS', 'IS', 'Iscrizione all''elenco');
INSERT INTO motivo_evento VALUES ('EL', 'IS', 'RE', 'Reiscrizione all''elenco');
INSERT INTO motivo_evento VALUES ('EL', 'IS', 'TR', 'Iscrizione per trasferimento');
INSERT INTO motivo_evento VALUES ('EL', 'IS', 'TA', 'Iscrizione per passaggio dall''albo');
INSERT INTO motivo_evento VALUES ('EL', 'IS', 'PR', 'Iscrizione dal registro dei praticanti');
INSERT INTO motivo_evento VALUES ('EL', 'IS', 'PC', 'Iscrizione per provvedimento del consiglio');
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
INSERT INTO motivo_evento VALUES ('PR', 'FP', 'FP', 'Fine della pratica');
INSERT INTO motivo_evento VALUES ('PR', 'CA', 'DI', 'Cancellazione per dimissioni');
