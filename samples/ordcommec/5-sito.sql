-- Copia degli iscritti che il sito pubblica.
CREATE TABLE DataWebAnagrafica (
  cd_matr LONG CONSTRAINT PrimaryKey PRIMARY KEY,
  Nominativo TEXT(101) NOT NULL,
  Citta TEXT(60),
  ds_regione_certificatore_energetico TEXT(30),
  DataInvio DATETIME);

INSERT INTO DataWebAnagrafica VALUES (1, 'Palumbo Vincenzo', 'Terni', NULL, #02/28/2006 22:15:04#);
INSERT INTO DataWebAnagrafica VALUES (2, 'De Angelis Fabio', 'Tivoli', 'Emilia-Romagna', #02/28/2006 22:15:04#);
INSERT INTO DataWebAnagrafica VALUES (3, 'Cattaneo Beatrice', 'Forlì', 'Marche', #02/28/2006 22:15:04#);
INSERT INTO DataWebAnagrafica VALUES (4, 'Grasso Federica', 'Ancona', 'Valle d''Aosta', #02/28/2006 22:15:04#);
INSERT INTO DataWebAnagrafica VALUES (5, 'Barone Vincenzo', 'Riccione', 'Toscana', #02/28/2006 22:15:04#);
INSERT INTO DataWebAnagrafica VALUES (6, 'Carbone Fabio', 'Campobasso', 'Valle d''Aosta', #02/28/2006 22:15:04#);
INSERT INTO DataWebAnagrafica VALUES (7, 'Valbonesi Anna', 'Grosseto', 'Emilia-Romagna', #02/28/2006 22:15:04#);
INSERT INTO DataWebAnagrafica VALUES (8, 'Pagano Marco', 'Massa', NULL, #02/28/2006 22:15:04#);
INSERT INTO DataWebAnagrafica VALUES (9, 'Lombardo Anna', 'Pesaro', NULL, #02/28/2006 22:15:04#);
INSERT INTO DataWebAnagrafica VALUES (10, 'Sartori Paolo', 'Rho', 'Valle d''Aosta', #02/28/2006 22:15:04#);
INSERT INTO DataWebAnagrafica VALUES (11, 'Caputo Anna', 'Firenze', NULL, #02/28/2006 22:15:04#);
INSERT INTO DataWebAnagrafica VALUES (12, 'Ferrari Federica', 'Venezia', NULL, #02/28/2006 22:15:04#);
INSERT INTO DataWebAnagrafica VALUES (13, 'Bianco Giosuè', 'Reggio nell''Emilia', NULL, #02/28/2006 22:15:04#);
INSERT INTO DataWebAnagrafica VALUES (15, 'Santoro Alessandra', 'Perugia', 'Valle d''Aosta', #02/28/2006 22:15:04#);
INSERT INTO DataWebAnagrafica VALUES (16, 'Marchetti Gianluca', 'Rimini', 'Marche', #02/28/2006 22:15:04#);
INSERT INTO DataWebAnagrafica VALUES (17, 'Zanfrà Marco', 'Rovereto', NULL, #02/28/2006 22:15:04#);
INSERT INTO DataWebAnagrafica VALUES (18, 'Morelli Elena', 'Catanzaro', NULL, #02/28/2006 22:15:04#);
INSERT INTO DataWebAnagrafica VALUES (19, 'Muscarà Pietro', 'Fermo', NULL, #02/28/2006 22:15:04#);
INSERT INTO DataWebAnagrafica VALUES (20, 'Dell''Orto Laura', 'Crotone', NULL, #02/28/2006 22:15:04#);
INSERT INTO DataWebAnagrafica VALUES (21, 'Costantini Enrico', 'Forlì', 'Emilia-Romagna', #02/28/2006 22:15:04#);
INSERT INTO DataWebAnagrafica VALUES (22, 'Morelli Filippo', 'Palermo', 'Toscana', #02/28/2006 22:15:04#);
INSERT INTO DataWebAnagrafica VALUES (23, 'Muscarà Claudio', 'Cattolica', 'Emilia-Romagna', #02/28/2006 22:15:04#);
INSERT INTO DataWebAnagrafica VALUES (24, 'Bianchi Anna', 'Riccione', NULL, #02/28/2006 22:15:04#);
INSERT INTO DataWebAnagrafica VALUES (25, 'Coppola Pietro', 'Frosinone', 'Valle d''Aosta', #02/28/2006 22:15:04#);
INSERT INTO DataWebAnagrafica VALUES (26, 'Giordano Pietro', 'Pavia', 'Toscana', #02/28/2006 22:15:04#);
INSERT INTO DataWebAnagrafica VALUES (27, 'Benedetti Silvia', 'Biella', NULL, #02/28/2006 22:15:04#);
INSERT INTO DataWebAnagrafica VALUES (28, 'L''Abbate Luigi', 'Cesena', 'Emilia-Romagna', #02/28/2006 22:15:04#);
INSERT INTO DataWebAnagrafica VALUES (29, 'Piras Francesco', 'Jesi', 'Toscana', #02/28/2006 22:15:04#);
INSERT INTO DataWebAnagrafica VALUES (30, 'Martinelli Luigi', 'Faenza', NULL, #02/28/2006 22:15:04#);
INSERT INTO DataWebAnagrafica VALUES (31, 'Costantini Massimo', 'Napoli', NULL, #02/28/2006 22:15:04#);
INSERT INTO DataWebAnagrafica VALUES (32, 'Martinelli Sergio', 'Ancona', 'Toscana', #02/28/2006 22:15:04#);
INSERT INTO DataWebAnagrafica VALUES (33, 'Fiore Elena', 'Mondovì', 'Friuli-Venezia Giulia', #02/28/2006 22:15:04#);
INSERT INTO DataWebAnagrafica VALUES (36, 'Bianchi Antonio', 'Grosseto', 'Toscana', #02/28/2006 22:15:04#);
INSERT INTO DataWebAnagrafica VALUES (38, 'Marchetti Pietro', 'Pistoia', NULL, #02/28/2006 22:15:04#);
INSERT INTO DataWebAnagrafica VALUES (39, 'Dell''Orto Enrico', 'Campobasso', 'Toscana', #02/28/2006 22:15:04#);
INSERT INTO DataWebAnagrafica VALUES (40, 'Casadei Barbara', 'Rho', 'Friuli-Venezia Giulia', #02/28/2006 22:15:04#);
INSERT INTO DataWebAnagrafica VALUES (41, 'Martino Roberto', 'Sassari', NULL, #02/28/2006 22:15:04#);
INSERT INTO DataWebAnagrafica VALUES (43, 'Zoli Alessandra', 'Santarcangelo di Romagna', NULL, #02/28/2006 22:15:04#);
INSERT INTO DataWebAnagrafica VALUES (44, 'Orlando Cristina', 'Ragusa', 'Valle d''Aosta', #02/28/2006 22:15:04#);
INSERT INTO DataWebAnagrafica VALUES (46, 'Rizzo Irene', 'Santarcangelo di Romagna', NULL, #02/28/2006 22:15:04#);
INSERT INTO DataWebAnagrafica VALUES (47, 'Pagano Irene', 'Ravenna', NULL, #02/28/2006 22:15:04#);
INSERT INTO DataWebAnagrafica VALUES (48, 'Caruso Giovanni', 'Livorno', 'Toscana', #02/28/2006 22:15:04#);
INSERT INTO DataWebAnagrafica VALUES (49, 'De Angelis Giovanni', 'Pavia', NULL, #02/28/2006 22:15:04#);
INSERT INTO DataWebAnagrafica VALUES (52, 'Conte Gianluca', 'Aosta', 'Toscana', #02/28/2006 22:15:04#);
INSERT INTO DataWebAnagrafica VALUES (53, 'Fontana Carlo', 'Gorizia', NULL, #02/28/2006 22:15:04#);
INSERT INTO DataWebAnagrafica VALUES (54, 'Silvestri Francesca', 'Bologna', 'Toscana', #02/28/2006 22:15:04#);
INSERT INTO DataWebAnagrafica VALUES (55, 'Barbieri Sergio', 'Bassano del Grappa', 'Marche', #02/28/2006 22:15:04#);
INSERT INTO DataWebAnagrafica VALUES (56, 'Orlando Monica', 'L''Aquila', NULL, #02/28/2006 22:15:04#);
INSERT INTO DataWebAnagrafica VALUES (57, 'Parisi Chiara', 'Empoli', 'Emilia-Romagna', #02/28/2006 22:15:04#);
INSERT INTO DataWebAnagrafica VALUES (58, 'Gentile Alessandro', 'Monza', NULL, #02/28/2006 22:15:04#);
INSERT INTO DataWebAnagrafica VALUES (59, 'Calabrò Chiara', 'Cattolica', 'Valle d''Aosta', #02/28/2006 22:15:04#);
INSERT INTO DataWebAnagrafica VALUES (62, 'Barbieri Chiara', 'Como', NULL, #02/28/2006 22:15:04#);
INSERT INTO DataWebAnagrafica VALUES (63, 'Negri Andrea', 'Alessandria', NULL, #02/28/2006 22:15:04#);
INSERT INTO DataWebAnagrafica VALUES (64, 'Rossi Maurizio', 'Reggio nell''Emilia', NULL, #02/28/2006 22:15:04#);
INSERT INTO DataWebAnagrafica VALUES (65, 'Dalmonte Giulia', 'Lecce', 'Valle d''Aosta', #02/28/2006 22:15:04#);
INSERT INTO DataWebAnagrafica VALUES (66, 'Russo Michela', 'Palermo', NULL, #02/28/2006 22:15:04#);
INSERT INTO DataWebAnagrafica VALUES (67, 'Santoro Gianluca', 'La Spezia', NULL, #02/28/2006 22:15:04#);
INSERT INTO DataWebAnagrafica VALUES (69, 'Cantù Michela', 'Riccione', 'Emilia-Romagna', #02/28/2006 22:15:04#);
INSERT INTO DataWebAnagrafica VALUES (70, 'Negri Marco', 'Faenza', 'Toscana', #02/28/2006 22:15:04#);
INSERT INTO DataWebAnagrafica VALUES (71, 'Rossetti Enrico', 'Faenza', 'Valle d''Aosta', #02/28/2006 22:15:04#);
