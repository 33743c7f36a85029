-- Copia degli iscritti che il sito pubblica.
CREATE TABLE DataWebAnagrafica (
  cd_matr LONG CONSTRAINT PrimaryKey PRIMARY KEY,
  Nominativo TEXT(101) NOT NULL,
  Citta TEXT(60),
  ds_regione_certificatore_energetico TEXT(30),
  DataInvio DATETIME,
  ds_fax TEXT(20));

INSERT INTO DataWebAnagrafica VALUES (1, 'Palumbo Vincenzo', 'Terni', NULL, #02/28/2006 22:15:04#, NULL);
INSERT INTO DataWebAnagrafica VALUES (2, 'De Angelis Fabio', 'Tivoli', 'Emilia-Romagna', #02/28/2006 22:15:04#, NULL);
INSERT INTO DataWebAnagrafica VALUES (3, 'Cattaneo Beatrice', 'Forlì', 'Marche', #02/28/2006 22:15:04#, NULL);
INSERT INTO DataWebAnagrafica VALUES (4, 'Grasso Federica', 'Ancona', 'Valle d''Aosta', #02/28/2006 22:15:04#, '0543 000148');
INSERT INTO DataWebAnagrafica VALUES (5, 'Barone Vincenzo', 'Riccione', 'Toscana', #02/28/2006 22:15:04#, NULL);
INSERT INTO DataWebAnagrafica VALUES (6, 'Carbone Fabio', 'Campobasso', 'Valle d''Aosta', #02/28/2006 22:15:04#, NULL);
INSERT INTO DataWebAnagrafica VALUES (7, 'Valbonesi Anna', 'Grosseto', 'Emilia-Romagna', #02/28/2006 22:15:04#, NULL);
INSERT INTO DataWebAnagrafica VALUES (8, 'Pagano Marco', 'Massa', NULL, #02/28/2006 22:15:04#, '0543 000296');
INSERT INTO DataWebAnagrafica VALUES (9, 'Lombardo Anna', 'Pesaro', NULL, #02/28/2006 22:15:04#, NULL);
INSERT INTO DataWebAnagrafica VALUES (10, 'Sartori Paolo', 'Rho', 'Valle d''Aosta', #02/28/2006 22:15:04#, NULL);
INSERT INTO DataWebAnagrafica VALUES (11, 'Caputo Anna', 'Firenze', NULL, #02/28/2006 22:15:04#, NULL);
INSERT INTO DataWebAnagrafica VALUES (12, 'Ferrari Federica', 'Venezia', NULL, #02/28/2006 22:15:04#, '0543 000444');
INSERT INTO DataWebAnagrafica VALUES (13, 'Bianco Giosuè', 'Reggio nell''Emilia', NULL, #02/28/2006 22:15:04#, NULL);
INSERT INTO DataWebAnagrafica VALUES (15, 'Santoro Alessandra', 'Perugia', 'Valle d''Aosta', #02/28/2006 22:15:04#, NULL);
INSERT INTO DataWebAnagrafica VALUES (16, 'Marchetti Gianluca', 'Rimini', 'Marche', #02/28/2006 22:15:04#, '0543 000592');
INSERT INTO DataWebAnagrafica VALUES (17, 'Zanfrà Marco', 'Rovereto', NULL, #02/28/2006 22:15:04#, NULL);
INSERT INTO DataWebAnagrafica VALUES (18, 'Morelli Elena', 'Catanzaro', NULL, #02/28/2006 22:15:04#, NULL);
INSERT INTO DataWebAnagrafica VALUES (19, 'Muscarà Pietro', 'Fermo', NULL, #02/28/2006 22:15:04#, NULL);
INSERT INTO DataWebAnagrafica VALUES (20, 'Dell''Orto Laura', 'Crotone', NULL, #02/28/2006 22:15:04#, '0543 000740');
INSERT INTO DataWebAnagrafica VALUES (21, 'Costantini Enrico', 'Forlì', 'Emilia-Romagna', #02/28/2006 22:15:04#, NULL);
INSERT INTO DataWebAnagrafica VALUES (22, 'Morelli Filippo', 'Palermo', 'Toscana', #02/28/2006 22:15:04#, NULL);
INSERT INTO DataWebAnagrafica VALUES (23, 'Muscarà Claudio', 'Cattolica', 'Emilia-Romagna', #02/28/2006 22:15:04#, NULL);
INSERT INTO DataWebAnagrafica VALUES (24, 'Bianchi Anna', 'Riccione', NULL, #02/28/2006 22:15:04#, '0543 000888');
INSERT INTO DataWebAnagrafica VALUES (25, 'Coppola Pietro', 'Frosinone', 'Valle d''Aosta', #02/28/2006 22:15:04#, NULL);
INSERT INTO DataWebAnagrafica VALUES (26, 'Giordano Pietro', 'Pavia', 'Toscana', #02/28/2006 22:15:04#, NULL);
INSERT INTO DataWebAnagrafica VALUES (27, 'Benedetti Silvia', 'Biella', NULL, #02/28/2006 22:15:04#, NULL);
INSERT INTO DataWebAnagrafica VALUES (28, 'L''Abbate Luigi', 'Cesena', 'Emilia-Romagna', #02/28/2006 22:15:04#, '0543 001036');
INSERT INTO DataWebAnagrafica VALUES (29, 'Piras Francesco', 'Jesi', 'Toscana', #02/28/2006 22:15:04#, NULL);
INSERT INTO DataWebAnagrafica VALUES (30, 'Martinelli Luigi', 'Faenza', NULL, #02/28/2006 22:15:04#, NULL);
INSERT INTO DataWebAnagrafica VALUES (31, 'Costantini Massimo', 'Napoli', NULL, #02/28/2006 22:15:04#, NULL);
INSERT INTO DataWebAnagrafica VALUES (32, 'Martinelli Sergio', 'Ancona', 'Toscana', #02/28/2006 22:15:04#, '0543 001184');
INSERT INTO DataWebAnagrafica VALUES (33, 'Fiore Elena', 'Mondovì', 'Friuli-Venezia Giulia', #02/28/2006 22:15:04#, NULL);
INSERT INTO DataWebAnagrafica VALUES (36, 'Bianchi Antonio', 'Grosseto', 'Toscana', #02/28/2006 22:15:04#, '0543 001332');
INSERT INTO DataWebAnagrafica VALUES (38, 'Marchetti Pietro', 'Pistoia', NULL, #02/28/2006 22:15:04#, NULL);
INSERT INTO DataWebAnagrafica VALUES (39, 'Dell''Orto Enrico', 'Campobasso', 'Toscana', #02/28/2006 22:15:04#, NULL);
INSERT INTO DataWebAnagrafica VALUES (40, 'Casadei Barbara', 'Rho', 'Friuli-Venezia Giulia', #02/28/2006 22:15:04#, '0543 001480');
INSERT INTO DataWebAnagrafica VALUES (41, 'Martino Roberto', 'Sassari', NULL, #02/28/2006 22:15:04#, NULL);
INSERT INTO DataWebAnagrafica VALUES (43, 'Zoli Alessandra', 'Santarcangelo di Romagna', NULL, #02/28/2006 22:15:04#, NULL);
INSERT INTO DataWebAnagrafica VALUES (44, 'Orlando Cristina', 'Ragusa', 'Valle d''Aosta', #02/28/2006 22:15:04#, '0543 001628');
INSERT INTO DataWebAnagrafica VALUES (46, 'Rizzo Irene', 'Santarcangelo di Romagna', NULL, #02/28/2006 22:15:04#, NULL);
INSERT INTO DataWebAnagrafica VALUES (47, 'Pagano Irene', 'Ravenna', NULL, #02/28/2006 22:15:04#, NULL);
INSERT INTO DataWebAnagrafica VALUES (48, 'Caruso Giovanni', 'Livorno', 'Toscana', #02/28/2006 22:15:04#, '0543 001776');
INSERT INTO DataWebAnagrafica VALUES (49, 'De Angelis Giovanni', 'Pavia', NULL, #02/28/2006 22:15:04#, NULL);
INSERT INTO DataWebAnagrafica VALUES (52, 'Conte Gianluca', 'Aosta', 'Toscana', #02/28/2006 22:15:04#, '0543 001924');
INSERT INTO DataWebAnagrafica VALUES (53, 'Fontana Carlo', 'Gorizia', NULL, #02/28/2006 22:15:04#, NULL);
INSERT INTO DataWebAnagrafica VALUES (54, 'Silvestri Francesca', 'Bologna', 'Toscana', #02/28/2006 22:15:04#, NULL);
INSERT INTO DataWebAnagrafica VALUES (55, 'Barbieri Sergio', 'Bassano del Grappa', 'Marche', #02/28/2006 22:15:04#, NULL);
INSERT INTO DataWebAnagrafica VALUES (56, 'Orlando Monica', 'L''Aquila', NULL, #02/28/2006 22:15:04#, '0543 002072');
INSERT INTO DataWebAnagrafica VALUES (57, 'Parisi Chiara', 'Empoli', 'Emilia-Romagna', #02/28/2006 22:15:04#, NULL);
INSERT INTO DataWebAnagrafica VALUES (58, 'Gentile Alessandro', 'Monza', NULL, #02/28/2006 22:15:04#, NULL);
INSERT INTO DataWebAnagrafica VALUES (59, 'Calabrò Chiara', 'Cattolica', 'Valle d''Aosta', #02/28/2006 22:15:04#, NULL);
INSERT INTO DataWebAnagrafica VALUES (62, 'Barbieri Chiara', 'Como', NULL, #02/28/2006 22:15:04#, NULL);
INSERT INTO DataWebAnagrafica VALUES (63, 'Negri Andrea', 'Alessandria', NULL, #02/28/2006 22:15:04#, NULL);
INSERT INTO DataWebAnagrafica VALUES (64, 'Rossi Maurizio', 'Reggio nell''Emilia', NULL, #02/28/2006 22:15:04#, '0543 002368');
INSERT INTO DataWebAnagrafica VALUES (65, 'Dalmonte Giulia', 'Lecce', 'Valle d''Aosta', #02/28/2006 22:15:04#, NULL);
INSERT INTO DataWebAnagrafica VALUES (66, 'Russo Michela', 'Palermo', NULL, #02/28/2006 22:15:04#, NULL);
INSERT INTO DataWebAnagrafica VALUES (67, 'Santoro Gianluca', 'La Spezia', NULL, #02/28/2006 22:15:04#, NULL);
INSERT INTO DataWebAnagrafica VALUES (69, 'Cantù Michela', 'Riccione', 'Emilia-Romagna', #02/28/2006 22:15:04#, NULL);
INSERT INTO DataWebAnagrafica VALUES (70, 'Negri Marco', 'Faenza', 'Toscana', #02/28/2006 22:15:04#, NULL);
INSERT INTO DataWebAnagrafica VALUES (71, 'Rossetti Enrico', 'Faenza', 'Valle d''Aosta', #02/28/2006 22:15:04#, NULL);

CREATE TABLE DataWebIndirizzo (
  cd_matr LONG NOT NULL,
  Progressivo SHORT NOT NULL,
  Tipo TEXT(1) NOT NULL,
  Indirizzo TEXT(60),
  CAP TEXT(5),
  Comune TEXT(60),
  Provincia TEXT(2),
  CONSTRAINT PrimaryKey PRIMARY KEY (cd_matr, Progressivo));
ALTER TABLE DataWebIndirizzo ADD CONSTRAINT DataWebAnagrafica_Indirizzo
  FOREIGN KEY (cd_matr) REFERENCES DataWebAnagrafica (cd_matr);

INSERT INTO DataWebIndirizzo VALUES (1, 1, 'S', 'Via Carducci, 137', '05100', 'Terni', 'TR');
INSERT INTO DataWebIndirizzo VALUES (2, 1, 'S', 'Via Carducci, 27', '00019', 'Tivoli', 'RM');
INSERT INTO DataWebIndirizzo VALUES (3, 1, 'S', 'Via Sant''Antonio Vecchio, 44', '47100', 'Forlì', 'FC');
INSERT INTO DataWebIndirizzo VALUES (4, 1, 'S', 'Via Emilia, 130', '60100', 'Ancona', 'AN');
INSERT INTO DataWebIndirizzo VALUES (5, 1, 'S', 'Via XX Settembre, 58', '47838', 'Riccione', 'RN');
INSERT INTO DataWebIndirizzo VALUES (6, 1, 'S', 'Via Carducci, 11', '86100', 'Campobasso', 'CB');
INSERT INTO DataWebIndirizzo VALUES (7, 1, 'S', 'Largo Nicolò Copernico, 74', '58100', 'Grosseto', 'GR');
INSERT INTO DataWebIndirizzo VALUES (8, 1, 'S', 'Via Ravegnana, 136', '54100', 'Massa', 'MS');
INSERT INTO DataWebIndirizzo VALUES (9, 1, 'S', 'Via XX Settembre, 13', '61100', 'Pesaro', 'PU');
INSERT INTO DataWebIndirizzo VALUES (10, 1, 'S', 'Via Ravegnana, 33', '20017', 'Rho', 'MI');
INSERT INTO DataWebIndirizzo VALUES (11, 1, 'S', 'Via XX Settembre, 50', '50100', 'Firenze', 'FI');
INSERT INTO DataWebIndirizzo VALUES (12, 1, 'S', 'Corso Diaz, 77', '30100', 'Venezia', 'VE');
INSERT INTO DataWebIndirizzo VALUES (13, 1, 'S', 'Via Giuseppe Mazzini, 114', '42100', 'Reggio nell''Emilia', 'RE');
INSERT INTO DataWebIndirizzo VALUES (15, 1, 'S', 'Via Giuseppe Mazzini, 114', '06100', 'Perugia', 'PG');
INSERT INTO DataWebIndirizzo VALUES (16, 1, 'S', 'Viale Bologna, 3', '47900', 'Rimini', 'RN');
INSERT INTO DataWebIndirizzo VALUES (17, 1, 'S', 'Via Sant''Antonio Vecchio, 110', '38068', 'Rovereto', 'TN');
INSERT INTO DataWebIndirizzo VALUES (18, 1, 'S', 'Via dell''Appennino, 35', '88100', 'Catanzaro', 'CZ');
INSERT INTO DataWebIndirizzo VALUES (19, 1, 'S', 'Via Cesare Battisti, 39', '63900', 'Fermo', 'FM');
INSERT INTO DataWebIndirizzo VALUES (20, 1, 'S', 'Via Decio Raggi, 93', '88900', 'Crotone', 'KR');
INSERT INTO DataWebIndirizzo VALUES (21, 1, 'S', 'Via Decio Raggi, 89', '47100', 'Forlì', 'FC');
INSERT INTO DataWebIndirizzo VALUES (22, 1, 'S', 'Via Roma, 69', '90100', 'Palermo', 'PA');
INSERT INTO DataWebIndirizzo VALUES (23, 1, 'S', 'Via dell''Appennino, 83', '47841', 'Cattolica', 'RN');
INSERT INTO DataWebIndirizzo VALUES (24, 1, 'S', 'Viale della Libertà, 122', '47838', 'Riccione', 'RN');
INSERT INTO DataWebIndirizzo VALUES (25, 1, 'S', 'Viale della Libertà, 111', '03100', 'Frosinone', 'FR');
INSERT INTO DataWebIndirizzo VALUES (26, 1, 'S', 'Piazza Saffi, 27', '27100', 'Pavia', 'PV');
INSERT INTO DataWebIndirizzo VALUES (27, 1, 'S', 'Piazza Saffi, 71', '13900', 'Biella', 'BI');
INSERT INTO DataWebIndirizzo VALUES (28, 1, 'S', 'Corso Diaz, 23', '47023', 'Cesena', 'FC');
INSERT INTO DataWebIndirizzo VALUES (29, 1, 'S', 'Corso della Repubblica, 28', '60035', 'Jesi', 'AN');
INSERT INTO DataWebIndirizzo VALUES (30, 1, 'S', 'Via Carducci, 136', '48018', 'Faenza', 'RA');
INSERT INTO DataWebIndirizzo VALUES (31, 1, 'S', 'Via Dante Alighieri, 38', '80100', 'Napoli', 'NA');
INSERT INTO DataWebIndirizzo VALUES (32, 1, 'S', 'Via Garibaldi, 32', '60100', 'Ancona', 'AN');
INSERT INTO DataWebIndirizzo VALUES (33, 1, 'S', 'Viale Bologna, 100', '12084', 'Mondovì', 'CN');
INSERT INTO DataWebIndirizzo VALUES (36, 1, 'S', 'Corso Diaz, 56', '58100', 'Grosseto', 'GR');
INSERT INTO DataWebIndirizzo VALUES (38, 1, 'S', 'Via dell''Appennino, 53', '51100', 'Pistoia', 'PT');
INSERT INTO DataWebIndirizzo VALUES (39, 1, 'S', 'Via Cesare Battisti, 16', '86100', 'Campobasso', 'CB');
INSERT INTO DataWebIndirizzo VALUES (40, 1, 'S', 'Largo Nicolò Copernico, 16', '20017', 'Rho', 'MI');
INSERT INTO DataWebIndirizzo VALUES (41, 1, 'S', 'Via Emilia, 22', '07100', 'Sassari', 'SS');
INSERT INTO DataWebIndirizzo VALUES (43, 1, 'S', 'Via Sant''Antonio Vecchio, 43', '47822', 'Santarcangelo di Romagna', 'RN');
INSERT INTO DataWebIndirizzo VALUES (44, 1, 'S', 'Piazza Cavour, 35', '97100', 'Ragusa', 'RG');
INSERT INTO DataWebIndirizzo VALUES (46, 1, 'S', 'Via XX Settembre, 10', '47822', 'Santarcangelo di Romagna', 'RN');
