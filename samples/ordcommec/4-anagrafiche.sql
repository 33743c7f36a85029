-- Praticanti, studi, simpatizzanti, enti e gruppi. Anche questi sono inventati.
CREATE TABLE praticante (
  cd_matr LONG CONSTRAINT PrimaryKey PRIMARY KEY,
  ds_cognome TEXT(50) NOT NULL,
  ds_nome TEXT(50) NOT NULL,
  dt_nascita DATETIME,
  cd_fiscale TEXT(16),
  nr_sezione LONG,
  sezione TEXT(1),
  cd_stato_corr TEXT(2),
  dt_inizio_pratica DATETIME,
  dt_scadenza_relazione DATETIME,
  ds_cognome_prof TEXT(50),
  cd_nr_collegio LONG,
  cd_abilitazione TEXT(10),
  ds_scuola TEXT(40));
CREATE INDEX Nominativo ON praticante (ds_cognome, ds_nome);
CREATE INDEX Scuola ON praticante (ds_scuola, ds_cognome);

INSERT INTO praticante VALUES (1, 'Giuliani', 'Laura', #12/11/1981#, 'GLNLRA81T51X281K', 0, NULL, 'IS', #02/01/2004#, NULL, 'Gallo', 145, '0', 'Università di Bologna');
INSERT INTO praticante VALUES (2, 'Testa', 'Marco', #09/18/1972#, 'TSTMRC72P18X327D', 0, NULL, 'IS', #01/30/2001#, NULL, 'Testa', 158, '0', 'ITC Matteucci');
INSERT INTO praticante VALUES (3, 'Bernardi', 'Filippo', #01/05/1983#, 'BRNFPP83A05X085L', 0, NULL, 'IS', #07/09/2003#, NULL, 'Ferretti', 13, '0', 'Università di Bologna');
INSERT INTO praticante VALUES (4, 'Silvestri', 'Luigi', #02/05/1972#, 'SLVLGU72B05X690D', 0, NULL, 'IS', #04/09/2004#, NULL, 'Romano', 180, '0', 'Università di Bologna');
INSERT INTO praticante VALUES (5, 'Gatti', 'Claudio', #11/11/1972#, 'GTTCLD72S11X597V', 0, NULL, 'IS', #04/02/2004#, NULL, 'Gallo', 152, '0', 'Università di Urbino');
INSERT INTO praticante VALUES (6, 'Gatti', 'Federica', #02/27/1982#, 'GTTFRC82B67X006Q', 0, NULL, 'NI', #01/14/2001#, NULL, 'Serra', 172, '0', 'ITC Matteucci');
INSERT INTO praticante VALUES (7, 'Barbieri', 'Noemi', #08/25/1978#, 'BRBNMO78M65X699K', 0, NULL, 'IS', #02/10/2002#, NULL, 'Leone', 65, '0', 'ITC Matteucci');
INSERT INTO praticante VALUES (8, 'Zanfrà', 'Maurizio', #08/08/1972#, 'ZNFMRZ72M08X243H', 0, NULL, 'IS', #08/13/2004#, NULL, 'Ferretti', 126, '0', 'ITC Matteucci');
INSERT INTO praticante VALUES (9, 'Mariani', 'Irene', #05/01/1979#, 'MRNRNI79E41X944O', 0, NULL, 'IS', #04/15/2005#, NULL, 'Vitali', 65, '5', 'ITC Matteucci');
INSERT INTO praticante VALUES (10, 'Cattaneo', 'Sara', #05/30/1976#, 'CTTSRA76E70X462R', 0, NULL, 'IS', #05/15/2001#, NULL, 'Parisi', 59, '0', 'Università di Bologna');
INSERT INTO praticante VALUES (11, 'Muscarà', 'Alessandro', #01/24/1981#, 'MSCLSN81A24X575J', 0, NULL, 'IS', #10/19/2003#, NULL, 'Fontana', 70, '5', NULL);
INSERT INTO praticante VALUES (12, 'Palumbo', 'Beatrice', #06/14/1975#, 'PLMBRC75H54X889L', 0, NULL, 'IS', #06/29/2004#, NULL, 'D''Angelo', 171, '2', NULL);
INSERT INTO praticante VALUES (13, 'De Luca', 'Matteo', #01/20/1975#, 'DLCMTT75A20X605P', 0, NULL, 'IS', #10/05/2005#, NULL, 'Bellini', 28, '0', 'Università di Bologna');
INSERT INTO praticante VALUES (14, 'Colombo', 'Maria', #03/28/1977#, 'CLMMRA77C68X311J', 0, NULL, 'IS', #07/12/2002#, NULL, 'Romano', 103, '0', 'Università di Urbino');
INSERT INTO praticante VALUES (15, 'Coppola', 'Paolo', #09/06/1981#, 'CPPPLA81P06X303N', 0, NULL, 'CA', #12/02/2005#, NULL, 'Gentile', 68, '0', 'Università di Bologna');
INSERT INTO praticante VALUES (16, 'D''Angelo', 'Sara', #02/20/1976#, 'DNGSRA76B60X613H', 0, NULL, 'IS', #05/16/2002#, NULL, 'Casadei', 59, '0', 'ITC Matteucci');
INSERT INTO praticante VALUES (17, 'Mazza', 'Simone', #06/26/1982#, 'MZZSMN82H26X045D', 0, NULL, 'IS', #09/15/2001#, NULL, 'Rinaldi', 87, '0', 'ITC Matteucci');
INSERT INTO praticante VALUES (18, 'Ferretti', 'Enrico', #04/28/1979#, 'FRRNRC79D28X923M', 0, NULL, 'IS', #11/26/2001#, NULL, 'Galli', 43, '0', 'Università di Urbino');
INSERT INTO praticante VALUES (19, 'Fabbri', 'Laura', #04/10/1979#, 'FBBLRA79D50X758G', 0, NULL, 'IS', #07/14/2005#, NULL, 'Barone', 114, '5', 'Università di Bologna');
INSERT INTO praticante VALUES (20, 'Carbone', 'Luigi', #01/08/1976#, 'CRBLGU76A08X049E', 0, NULL, 'IS', #02/13/2004#, NULL, 'Sanna', 25, '2', NULL);
INSERT INTO praticante VALUES (21, 'De Luca', 'Carlo', #01/04/1974#, 'DLCCRL74A04X293P', 0, NULL, 'IS', #12/02/2005#, NULL, 'Messina', 153, '2', 'ITC Matteucci');
INSERT INTO praticante VALUES (22, 'Conte', 'Monica', #11/03/1975#, 'CNTMNC75S43X832F', 0, NULL, 'IS', #03/05/2004#, NULL, 'Orlando', 50, '0', 'ITC Matteucci');
INSERT INTO praticante VALUES (23, 'Parisi', 'Giuseppe', #01/28/1980#, 'PRSGPP80A28X531G', 0, NULL, 'NI', #10/18/2004#, NULL, 'Barone', 94, '0', 'ITC Matteucci');
INSERT INTO praticante VALUES (24, 'Gentile', 'Matteo', #02/10/1982#, 'GNTMTT82B10X124O', 0, NULL, 'IS', #11/01/2003#, NULL, 'Vitali', 19, '0', 'ITC Matteucci');
INSERT INTO praticante VALUES (25, 'Rizzo', 'Andrea', #01/26/1973#, 'RZZNDR73A26X260K', 0, NULL, 'IS', #11/20/2005#, NULL, 'Dall''Ò', 93, '0', 'Università di Bologna');
INSERT INTO praticante VALUES (26, 'Caruso', 'Federica', #06/10/1973#, 'CRSFRC73H50X461A', 0, NULL, 'CA', #11/23/2004#, NULL, 'Marino', 117, '2', NULL);
INSERT INTO praticante VALUES (27, 'Farina', 'Irene', #03/21/1980#, 'FRNRNI80C61X759J', 0, NULL, 'IS', #12/26/2005#, NULL, 'Bruno', 62, '0', 'Università di Bologna');
INSERT INTO praticante VALUES (28, 'Ferrari', 'Michele', #11/13/1981#, 'FRRMHL81S13X038I', 0, NULL, 'CA', #08/01/2002#, NULL, 'Zanfrà', 68, '0', NULL);
INSERT INTO praticante VALUES (29, 'Caruso', 'Matteo', #02/25/1979#, 'CRSMTT79B25X636U', 0, NULL, 'NI', #11/10/2001#, NULL, 'Lombardo', 68, '0', 'Università di Bologna');
INSERT INTO praticante VALUES (30, 'Sanna', 'Francesco', #10/14/1973#, 'SNNFNC73R14X455E', 0, NULL, 'CA', #02/25/2003#, NULL, 'Sartori', 25, '0', 'ITC Matteucci');
INSERT INTO praticante VALUES (31, 'Lombardo', 'Giosuè', #01/31/1978#, 'LMBGSI78A31X250B', 0, NULL, 'CA', #03/21/2005#, NULL, 'Muscarà', 58, '0', 'ITC Matteucci');
INSERT INTO praticante VALUES (32, 'Marino', 'Giosuè', #09/24/1982#, 'MRNGSI82P24X283D', 0, NULL, 'IS', #08/22/2001#, NULL, 'Greco', 124, '0', 'Università di Urbino');
INSERT INTO praticante VALUES (33, 'Gentile', 'Laura', #04/30/1983#, 'GNTLRA83D70X011T', 0, NULL, 'CA', #06/18/2003#, NULL, 'Gentile', 80, '5', 'ITC Matteucci');
INSERT INTO praticante VALUES (34, 'D''Amico', 'Alessandra', #03/25/1976#, 'DMCLSN76C65X828O', 0, NULL, 'IS', #09/14/2002#, NULL, 'Bellini', 17, '0', 'ITC Matteucci');
INSERT INTO praticante VALUES (35, 'Vitale', 'Caterina', #08/03/1974#, 'VTLCRN74M43X950A', 0, NULL, 'IS', #11/24/2002#, NULL, 'Santoro', 140, '0', 'Università di Bologna');
INSERT INTO praticante VALUES (36, 'De Luca', 'Niccolò', #04/03/1976#, 'DLCNCL76D03X834N', 0, NULL, 'IS', #08/05/2001#, NULL, 'Caruso', 153, '0', NULL);
INSERT INTO praticante VALUES (37, 'Ricci', 'Caterina', #08/13/1983#, 'RCCCRN83M53X307H', 0, NULL, 'CA', #11/27/2005#, NULL, 'Conti', 168, '0', 'ITC Matteucci');
INSERT INTO praticante VALUES (38, 'Fabbri', 'Maurizio', #03/28/1979#, 'FBBMRZ79C28X472Z', 0, NULL, 'CA', #11/12/2001#, NULL, 'Sanna', 34, '0', 'ITC Matteucci');
INSERT INTO praticante VALUES (39, 'Rizzo', 'Stefano', #06/26/1980#, 'RZZSFN80H26X433N', 0, NULL, 'IS', #09/16/2002#, NULL, 'Valbonesi', 157, '0', NULL);
INSERT INTO praticante VALUES (40, 'Cattaneo', 'Matteo', #04/25/1981#, 'CTTMTT81D25X178S', 0, NULL, 'CA', #03/02/2005#, NULL, 'Longo', 83, '0', 'ITC Matteucci');
INSERT INTO praticante VALUES (41, 'Rossi', 'Filippo', #06/26/1979#, 'RSSFPP79H26X967G', 0, NULL, 'NI', #11/14/2004#, NULL, 'De Santis', 150, '0', 'Università di Urbino');
INSERT INTO praticante VALUES (42, 'Mancini', 'Fabio', #05/20/1980#, 'MNCFBA80E20X129O', 0, NULL, 'IS', #06/21/2005#, NULL, 'Farina', 143, '0', 'Università di Urbino');
INSERT INTO praticante VALUES (43, 'Carbone', 'Giovanni', #07/17/1978#, 'CRBGNN78L17X345Z', 0, NULL, 'IS', #11/12/2003#, NULL, 'Bernardi', 66, '0', NULL);
INSERT INTO praticante VALUES (44, 'De Luca', 'Pietro', #10/16/1973#, 'DLCPTR73R16X340S', 0, NULL, 'NI', #02/01/2005#, NULL, 'Pagano', 156, '0', NULL);
INSERT INTO praticante VALUES (45, 'Galli', 'Francesco', #06/18/1979#, 'GLLFNC79H18X712K', 0, NULL, 'IS', #07/24/2004#, NULL, 'Ravaioli', 15, '0', 'ITC Matteucci');
INSERT INTO praticante VALUES (46, 'Vitale', 'Cristina', #12/14/1975#, 'VTLCST75T54X700B', 0, NULL, 'NI', #06/10/2005#, NULL, 'Pellegrini', 47, '0', 'Università di Bologna');
INSERT INTO praticante VALUES (47, 'Negri', 'Pietro', #04/10/1973#, 'NGRPTR73D10X696P', 0, NULL, 'IS', #10/25/2005#, NULL, 'Ferri', 124, '0', NULL);
INSERT INTO praticante VALUES (48, 'Galli', 'Paolo', #01/27/1972#, 'GLLPLA72A27X826R', 0, NULL, 'IS', #12/14/2004#, NULL, 'Marchetti', 94, '0', 'ITC Matteucci');
INSERT INTO praticante VALUES (49, 'Serra', 'Marco', #04/09/1980#, 'SRRMRC80D09X509H', 0, NULL, 'IS', #01/31/2005#, NULL, 'Fabbri', 142, '0', 'ITC Matteucci');
INSERT INTO praticante VALUES (50, 'Testa', 'Andrea', #11/01/1976#, 'TSTNDR76S01X627T', 0, NULL, 'NI', #02/07/2003#, NULL, 'Silvestri', 70, '0', NULL);
INSERT INTO praticante VALUES (51, 'Martino', 'Andrea', #03/29/1979#, 'MRTNDR79C29X950I', 0, NULL, 'IS', #04/01/2003#, NULL, 'Pellegrini', 66, '2', NULL);
INSERT INTO praticante VALUES (52, 'Casadei', 'Paolo', #05/01/1977#, 'CSDPLA77E01X097C', 0, NULL, 'IS', #07/21/2002#, NULL, 'Negri', 120, '2', 'Università di Urbino');
INSERT INTO praticante VALUES (53, 'Muscarà', 'Filippo', #08/31/1978#, 'MSCFPP78M31X744H', 0, NULL, 'IS', #08/04/2003#, NULL, 'Gallo', 26, '0', NULL);
INSERT INTO praticante VALUES (54, 'Galli', 'Carlo', #05/13/1976#, 'GLLCRL76E13X652J', 0, NULL, 'IS', #08/20/2004#, NULL, 'Battaglia', 55, '0', NULL);
INSERT INTO praticante VALUES (55, 'Zanfrà', 'Lucia', #12/19/1972#, 'ZNFLCU72T59X750I', 0, NULL, 'NI', #10/31/2005#, NULL, 'Barbieri', 125, '0', 'ITC Matteucci');
INSERT INTO praticante VALUES (56, 'Zanfrà', 'Valentina', #06/05/1982#, 'ZNFVNT82H45X346F', 0, NULL, 'IS', #02/12/2001#, NULL, 'Leone', 89, '0', 'ITC Matteucci');
INSERT INTO praticante VALUES (57, 'Valentini', 'Francesca', #12/06/1980#, 'VLNFNC80T46X375O', 0, NULL, 'CA', #04/14/2002#, NULL, 'Serra', 144, '0', 'ITC Matteucci');
INSERT INTO praticante VALUES (58, 'Bellini', 'Silvia', #08/12/1975#, 'BLLSLV75M52X357E', 0, NULL, 'NI', #08/23/2002#, NULL, 'Bandini', 145, '0', NULL);
INSERT INTO praticante VALUES (59, 'Zanfrà', 'Filippo', #06/30/1983#, 'ZNFFPP83H30X120L', 0, NULL, 'IS', #10/01/2001#, NULL, 'Martini', 181, '0', NULL);
INSERT INTO praticante VALUES (60, 'Nicolò', 'Marta', #07/18/1980#, 'NCLMRT80L58X315A', 0, NULL, 'NI', #11/19/2005#, NULL, 'Sanna', 113, '0', 'Università di Bologna');
INSERT INTO praticante VALUES (61, 'Cattaneo', 'Paolo', #05/16/1983#, 'CTTPLA83E16X737I', 0, NULL, 'CA', #02/04/2001#, NULL, 'Marini', 110, '0', 'ITC Matteucci');
INSERT INTO praticante VALUES (62, 'Neri', 'Massimo', #10/21/1981#, 'NREMSM81R21X406D', 0, NULL, 'IS', #11/07/2003#, NULL, 'Barone', 114, '0', NULL);
INSERT INTO praticante VALUES (63, 'Ferrara', 'Davide', #02/18/1978#, 'FRRDVD78B18X281F', 0, NULL, 'IS', #01/08/2001#, NULL, 'Ruggiero', 153, '0', NULL);
INSERT INTO praticante VALUES (64, 'Martinelli', 'Simone', #07/29/1976#, 'MRTSMN76L29X105C', 0, NULL, 'IS', #08/29/2004#, NULL, 'Marchetti', 106, '0', 'ITC Matteucci');
INSERT INTO praticante VALUES (65, 'Dalmonte', 'Francesco', #03/28/1979#, 'DLMFNC79C28X196G', 0, NULL, 'IS', #12/24/2002#, NULL, 'Bianchi', 71, '0', NULL);
INSERT INTO praticante VALUES (66, 'Rossi', 'Lucia', #03/05/1981#, 'RSSLCU81C45X946X', 0, NULL, 'IS', #05/12/2005#, NULL, 'Sala', 13, '0', 'Università di Urbino');
INSERT INTO praticante VALUES (67, 'Bruno', 'Maria', #06/16/1975#, 'BRNMRA75H56X538S', 0, NULL, 'CA', #09/21/2003#, NULL, 'Riva', 65, '0', 'Università di Urbino');
INSERT INTO praticante VALUES (68, 'D''Amico', 'Enrico', #06/04/1977#, 'DMCNRC77H04X995H', 0, NULL, 'IS', #11/04/2005#, NULL, 'Carbone', 36, '0', NULL);
INSERT INTO praticante VALUES (69, 'Bianco', 'Elena', #06/10/1978#, 'BNCLNE78H50X690T', 0, NULL, 'IS', #03/04/2001#, NULL, 'Sorrentino', 104, '5', 'Università di Urbino');
INSERT INTO praticante VALUES (70, 'Fiore', 'Claudio', #04/30/1972#, 'FRICLD72D30X235C', 0, NULL, 'IS', #07/20/2005#, NULL, 'Montanari', 86, '0', NULL);

CREATE TABLE associati (
  cd_gruppo LONG CONSTRAINT PrimaryKey PRIMARY KEY,
  ds_denominazione TEXT(100) NOT NULL,
  nr_sezione LONG,
  ds_indirizzo TEXT(80),
  cd_cap TEXT(5),
  ds_localita TEXT(60),
  fl_spedizione TEXT(1));

INSERT INTO associati VALUES (1, 'Studio associato Zanfrà e Dalmonte', 1, 'Piazza Cavour, 97', '44100', 'Ferrara', '2');
INSERT INTO associati VALUES (2, 'Zoli & Bellini, commercialisti associati', 2, 'Via Decio Raggi, 44', '47822', 'Santarcangelo di Romagna', '2');
INSERT INTO associati VALUES (3, 'Studio associato Sgrò e Donati', 0, 'Via Emilia, 75', '60100', 'Ancona', NULL);
INSERT INTO associati VALUES (4, 'Studio associato Bianchi e Dall''Ò', 0, 'Vicolo dell''Università, 41', '23900', 'Lecco', NULL);
INSERT INTO associati VALUES (5, 'Studio Vitale - Parisi', 5, 'Viale della Libertà, 126', '06100', 'Perugia', '2');
INSERT INTO associati VALUES (6, 'Studio associato Conte e Negri', 6, 'Piazza Saffi, 68', '26866', 'Sant''Angelo Lodigiano', '2');
INSERT INTO associati VALUES (7, 'Longo & De Luca, commercialisti associati', 0, 'Via Ravegnana, 36', '47023', 'Cesena', NULL);
INSERT INTO associati VALUES (8, 'Studio associato De Angelis e Bellini', 8, 'Via Dante Alighieri, 138', '03100', 'Frosinone', '2');
INSERT INTO associati VALUES (9, 'Rossetti & Negri, commercialisti associati', 9, 'Via Giuseppe Mazzini, 132', '17100', 'Savona', NULL);
INSERT INTO associati VALUES (10, 'Rinaldi & Parisi, commercialisti associati', 0, 'Via Decio Raggi, 114', '80078', 'Pozzuoli', '2');
INSERT INTO associati VALUES (11, 'Studio Bandini - Palumbo', 0, 'Corso Diaz, 56', '36061', 'Bassano del Grappa', '2');
INSERT INTO associati VALUES (12, 'Studio Ruggiero - Grassi', 0, 'Corso Diaz, 119', '09045', 'Quartu Sant''Elena', '2');
INSERT INTO associati VALUES (13, 'Studio associato Calabrò e Milani', 13, 'Via XX Settembre, 10', '47900', 'Rimini', NULL);
INSERT INTO associati VALUES (14, 'Studio Caputo - Giordano', 0, 'Viale della Libertà, 2', '12084', 'Mondovì', '2');
INSERT INTO associati VALUES (15, 'Studio associato Negri e Zoli', 0, 'Via Sant''Antonio Vecchio, 104', '59100', 'Prato', '2');
INSERT INTO associati VALUES (16, 'Marini & Ferrari, commercialisti associati', 0, 'Piazza Cavour, 65', '21100', 'Varese', NULL);
INSERT INTO associati VALUES (17, 'Studio associato Marino e Monti', 17, 'Via Dante Alighieri, 13', '10100', 'Torino', NULL);
INSERT INTO associati VALUES (18, 'Studio Negri - Sartori', 0, 'Corso Diaz, 73', '40026', 'Imola', '2');
INSERT INTO associati VALUES (19, 'Studio Martino - Ferretti', 0, 'Via Decio Raggi, 50', '48100', 'Ravenna', '2');
INSERT INTO associati VALUES (20, 'Studio associato Marini e Rossetti', 20, 'Piazza Saffi, 33', '84100', 'Salerno', NULL);
INSERT INTO associati VALUES (21, 'Studio Fontana - Rizzi', 0, 'Piazza Cavour, 133', '40026', 'Imola', '2');
INSERT INTO associati VALUES (22, 'Pellegrini & Caruso, commercialisti associati', 22, 'Via Cesare Battisti, 140', '91100', 'Trapani', NULL);
INSERT INTO associati VALUES (23, 'Studio associato Rizzo e Donati', 23, 'Vicolo dell''Università, 18', '41012', 'Carpi', NULL);
INSERT INTO associati VALUES (24, 'Studio associato Carbone e Negri', 24, 'Via Garibaldi, 23', '48100', 'Ravenna', NULL);
INSERT INTO associati VALUES (25, 'Studio associato Caputo e Dalmonte', 0, 'Via Sant''Antonio Vecchio, 95', '04100', 'Latina', '2');
INSERT INTO associati VALUES (26, 'Studio associato Conti e Donati', 0, 'Via Ravegnana, 73', '40100', 'Bologna', '2');
INSERT INTO associati VALUES (27, 'Studio Coppola - Barbieri', 27, 'Viale della Libertà, 136', '27100', 'Pavia', NULL);
INSERT INTO associati VALUES (28, 'Mancini & Calabrò, commercialisti associati', 0, 'Via Dante Alighieri, 69', '98100', 'Messina', '2');

-- Due righe parlano di uno studio e di un iscritto che non ci sono più.
CREATE TABLE componenti_associati (
  cd_gruppo LONG NOT NULL,
  cd_classe TEXT(1) NOT NULL,
  cd_matr LONG NOT NULL,
  CONSTRAINT PrimaryKey PRIMARY KEY (cd_gruppo, cd_classe, cd_matr));

INSERT INTO componenti_associati VALUES (1, 'C', 137);
INSERT INTO componenti_associati VALUES (1, 'C', 148);
INSERT INTO componenti_associati VALUES (2, 'C', 10);
INSERT INTO componenti_associati VALUES (2, 'C', 134);
INSERT INTO componenti_associati VALUES (3, 'C', 80);
INSERT INTO componenti_associati VALUES (3, 'C', 117);
INSERT INTO componenti_associati VALUES (3, 'C', 900);
INSERT INTO componenti_associati VALUES (4, 'C', 65);
INSERT INTO componenti_associati VALUES (4, 'C', 121);
INSERT INTO componenti_associati VALUES (5, 'C', 18);
INSERT INTO componenti_associati VALUES (5, 'C', 55);
INSERT INTO componenti_associati VALUES (5, 'S', 20);
INSERT INTO componenti_associati VALUES (6, 'C', 8);
INSERT INTO componenti_associati VALUES (6, 'C', 25);
INSERT INTO componenti_associati VALUES (7, 'C', 21);
INSERT INTO componenti_associati VALUES (7, 'C', 64);
INSERT INTO componenti_associati VALUES (8, 'C', 9);
INSERT INTO componenti_associati VALUES (8, 'C', 39);
INSERT INTO componenti_associati VALUES (9, 'C', 26);
INSERT INTO componenti_associati VALUES (9, 'C', 126);
INSERT INTO componenti_associati VALUES (10, 'C', 131);
INSERT INTO componenti_associati VALUES (10, 'C', 141);
INSERT INTO componenti_associati VALUES (10, 'S', 6);
INSERT INTO componenti_associati VALUES (11, 'C', 12);
INSERT INTO componenti_associati VALUES (11, 'C', 164);
INSERT INTO componenti_associati VALUES (12, 'C', 31);
INSERT INTO componenti_associati VALUES (12, 'C', 71);
INSERT INTO componenti_associati VALUES (13, 'C', 22);
INSERT INTO componenti_associati VALUES (13, 'C', 95);
INSERT INTO componenti_associati VALUES (14, 'C', 65);
INSERT INTO componenti_associati VALUES (14, 'C', 149);
INSERT INTO componenti_associati VALUES (15, 'C', 31);
INSERT INTO componenti_associati VALUES (15, 'C', 159);
INSERT INTO componenti_associati VALUES (15, 'S', 16);
INSERT INTO componenti_associati VALUES (16, 'C', 90);
INSERT INTO componenti_associati VALUES (16, 'C', 125);
INSERT INTO componenti_associati VALUES (17, 'C', 124);
INSERT INTO componenti_associati VALUES (17, 'C', 134);
INSERT INTO componenti_associati VALUES (18, 'C', 78);
INSERT INTO componenti_associati VALUES (18, 'C', 108);
INSERT INTO componenti_associati VALUES (19, 'C', 1);
INSERT INTO componenti_associati VALUES (19, 'C', 136);
INSERT INTO componenti_associati VALUES (20, 'C', 21);
INSERT INTO componenti_associati VALUES (20, 'C', 67);
INSERT INTO componenti_associati VALUES (20, 'S', 17);
INSERT INTO componenti_associati VALUES (21, 'C', 48);
INSERT INTO componenti_associati VALUES (21, 'C', 140);
INSERT INTO componenti_associati VALUES (22, 'C', 90);
INSERT INTO componenti_associati VALUES (22, 'C', 167);
INSERT INTO componenti_associati VALUES (23, 'C', 36);
INSERT INTO componenti_associati VALUES (23, 'C', 107);
INSERT INTO componenti_associati VALUES (24, 'C', 11);
INSERT INTO componenti_associati VALUES (24, 'C', 19);
INSERT INTO componenti_associati VALUES (25, 'C', 120);
INSERT INTO componenti_associati VALUES (25, 'C', 153);
INSERT INTO componenti_associati VALUES (25, 'S', 3);
INSERT INTO componenti_associati VALUES (26, 'C', 16);
INSERT INTO componenti_associati VALUES (26, 'C', 24);
INSERT INTO componenti_associati VALUES (27, 'C', 36);
INSERT INTO componenti_associati VALUES (27, 'C', 85);
INSERT INTO componenti_associati VALUES (28, 'C', 150);
INSERT INTO componenti_associati VALUES (28, 'C', 164);
INSERT INTO componenti_associati VALUES (99, 'C', 12);

CREATE TABLE simpatizzante (
  cd_matr LONG CONSTRAINT PrimaryKey PRIMARY KEY,
  ds_cognome TEXT(50) NOT NULL,
  ds_nome TEXT(50),
  ds_qualifica TEXT(60),
  ds_citta TEXT(60),
  cd_classe TEXT(1));

INSERT INTO simpatizzante VALUES (1, 'Serra', 'Vincenzo', 'Consulente del lavoro', 'Bologna', 'S');
INSERT INTO simpatizzante VALUES (2, 'D''Amico', 'Cristina', 'Giornalista', 'Crotone', 'S');
INSERT INTO simpatizzante VALUES (3, 'Piras', 'Simone', 'Docente universitario', 'Oristano', 'S');
INSERT INTO simpatizzante VALUES (4, 'Serra', 'Enrico', 'Avvocato', 'Avellino', 'S');
INSERT INTO simpatizzante VALUES (5, 'Giordano', 'Sergio', 'Giornalista', 'Benevento', 'S');
INSERT INTO simpatizzante VALUES (6, 'Rossi', 'Stefano', 'Giornalista', 'Savona', 'S');
INSERT INTO simpatizzante VALUES (7, 'Vitali', 'Marta', 'Revisore', 'Cesena', 'S');
INSERT INTO simpatizzante VALUES (8, 'Rizzi', 'Emanuele', 'Consulente del lavoro', 'Rimini', 'S');
INSERT INTO simpatizzante VALUES (9, 'Lombardo', 'Barbara', 'Avvocato', 'Frosinone', 'S');
INSERT INTO simpatizzante VALUES (10, 'Dell''Orto', 'Emanuele', 'Revisore', 'Ravenna', 'S');
INSERT INTO simpatizzante VALUES (11, 'Rossi', 'Roberto', 'Notaio', 'Reggio di Calabria', 'S');
INSERT INTO simpatizzante VALUES (12, 'Martinelli', 'Antonio', 'Consulente del lavoro', 'Teramo', 'S');
INSERT INTO simpatizzante VALUES (13, 'Vitali', 'Matteo', 'Avvocato', 'Macerata', 'S');
INSERT INTO simpatizzante VALUES (14, 'Rinaldi', 'Valentina', 'Revisore', 'Forlì', 'S');
INSERT INTO simpatizzante VALUES (15, 'Fabbri', 'Simona', 'Giornalista', 'Pordenone', 'S');
INSERT INTO simpatizzante VALUES (16, 'Ricci', 'Irene', 'Revisore', 'Riccione', 'S');
INSERT INTO simpatizzante VALUES (17, 'Lombardo', 'Francesca', 'Notaio', 'Rho', 'S');
INSERT INTO simpatizzante VALUES (18, 'Zoli', 'Niccolò', 'Giornalista', 'Trento', 'S');
INSERT INTO simpatizzante VALUES (19, 'Battaglia', 'Michela', 'Giornalista', 'Nuoro', 'S');
INSERT INTO simpatizzante VALUES (20, 'Monti', 'Sergio', 'Notaio', 'Salerno', 'S');
INSERT INTO simpatizzante VALUES (21, 'Coppola', 'Elisa', 'Consulente del lavoro', 'Asti', 'S');
INSERT INTO simpatizzante VALUES (22, 'Romano', 'Monica', 'Consulente del lavoro', 'Pistoia', 'S');

CREATE TABLE enti (
  cd_ente LONG CONSTRAINT PrimaryKey PRIMARY KEY,
  ds_ente TEXT(100) NOT NULL,
  ds_indirizzo TEXT(80),
  ds_citta TEXT(60),
  fl_spedizione TEXT(1));

INSERT INTO enti VALUES (1, 'Comune di Forlì', 'Via Roma, 16', 'Forlì', NULL);
INSERT INTO enti VALUES (2, 'Provincia di Forlì-Cesena', 'Via Emilia, 60', 'Forlì', '2');
INSERT INTO enti VALUES (3, 'Camera di commercio', 'Via Ravegnana, 68', 'Forlì', '2');
INSERT INTO enti VALUES (4, 'Tribunale di Forlì', 'Vicolo dell''Università, 114', 'Forlì', NULL);
INSERT INTO enti VALUES (5, 'Agenzia delle entrate - ufficio di Forlì', 'Via dell''Appennino, 45', 'Forlì', NULL);
INSERT INTO enti VALUES (6, 'Prefettura', 'Corso Diaz, 106', 'Forlì', '2');
INSERT INTO enti VALUES (7, 'Comune di Cesena', 'Via XX Settembre, 90', 'Cesena', NULL);
INSERT INTO enti VALUES (8, 'Comune di Rimini', 'Via Giuseppe Mazzini, 140', 'Rimini', NULL);
INSERT INTO enti VALUES (9, 'Ordine degli avvocati', 'Via Emilia, 110', 'Forlì', '2');
INSERT INTO enti VALUES (10, 'Collegio dei geometri', 'Via Cesare Battisti, 81', 'Forlì', '2');
INSERT INTO enti VALUES (11, 'Università di Bologna - sede di Forlì', 'Via Decio Raggi, 132', 'Forlì', NULL);
INSERT INTO enti VALUES (12, 'INPS - sede provinciale', 'Via XX Settembre, 130', 'Forlì', '2');
INSERT INTO enti VALUES (13, 'Procura della Repubblica', 'Via Garibaldi, 16', 'Forlì', NULL);
INSERT INTO enti VALUES (14, 'Ministero della giustizia', 'Vicolo dell''Università, 123', 'Roma', '2');
INSERT INTO enti VALUES (15, 'Cassa di previdenza', 'Vicolo dell''Università, 97', 'Roma', '2');

CREATE TABLE gruppi (
  cd_gruppo LONG CONSTRAINT PrimaryKey PRIMARY KEY,
  ds_gruppo TEXT(60) NOT NULL,
  ds_note MEMO);

INSERT INTO gruppi VALUES (1, 'Consiglio dell''ordine', 'In carica fino al 31/12/2007');
INSERT INTO gruppi VALUES (2, 'Revisori', NULL);
INSERT INTO gruppi VALUES (3, 'Commissione parcelle', 'Si riunisce il primo lunedì del mese');
INSERT INTO gruppi VALUES (4, 'Commissione formazione', NULL);
INSERT INTO gruppi VALUES (5, 'Commissione disciplinare', NULL);
INSERT INTO gruppi VALUES (6, 'Delegati alla cassa', NULL);
INSERT INTO gruppi VALUES (7, 'Auguri di Natale', 'Etichette del formato 3 x 8');
INSERT INTO gruppi VALUES (8, 'Stampa locale', NULL);
INSERT INTO gruppi VALUES (9, 'Tirocinanti', NULL);
