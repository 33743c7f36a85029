-- Protocollo. Nel 2003 la numerazione era mensile; il 2004, primo anno di quella annuale, sta tutto nel mese 1.
-- Nel 2005 i contenuti di alcune lettere in uscita sono rimasti fra quelli in entrata.
CREATE TABLE prot_argomenti (
  cd_argomento LONG CONSTRAINT PrimaryKey PRIMARY KEY,
  ds_argomento TEXT(60) NOT NULL);

INSERT INTO prot_argomenti VALUES (1, 'Albo');
INSERT INTO prot_argomenti VALUES (2, 'Praticanti');
INSERT INTO prot_argomenti VALUES (3, 'Quote');
INSERT INTO prot_argomenti VALUES (4, 'Solleciti');
INSERT INTO prot_argomenti VALUES (10, 'Convenzioni');

CREATE TABLE prot_registrazione (
  anno SHORT NOT NULL,
  mese SHORT NOT NULL,
  tipo TEXT(3) NOT NULL,
  id_prot LONG NOT NULL,
  dt_registrazione DATETIME,
  ds_oggetto TEXT(120),
  ds_corrispondente TEXT(120),
  nr_prot_mittente TEXT(30),
  nr_fascicolo LONG,
  CONSTRAINT PrimaryKey PRIMARY KEY (anno, mese, tipo, id_prot));
CREATE INDEX DataRegistrazione ON prot_registrazione (dt_registrazione, nr_fascicolo);
CREATE INDEX Fascicolo ON prot_registrazione (nr_fascicolo);

INSERT INTO prot_registrazione VALUES (2003, 1, 'IN', 1, #01/08/2003#, 'Parere sulla parcella', 'Collegio dei geometri', '332/2003', 1);
INSERT INTO prot_registrazione VALUES (2003, 1, 'OUT', 2, #01/14/2003#, 'Comunicazione di variazione di indirizzo', 'Morelli Filippo', NULL, NULL);
INSERT INTO prot_registrazione VALUES (2003, 1, 'OUT', 3, #01/20/2003#, 'Sollecito della quota', 'Provincia di Forlì-Cesena', NULL, NULL);
INSERT INTO prot_registrazione VALUES (2003, 1, 'OUT', 4, #01/26/2003#, 'Parere sulla parcella', 'INPS - sede provinciale', NULL, 2);
INSERT INTO prot_registrazione VALUES (2003, 1, 'IN', 5, #02/01/2003#, 'Domanda di iscrizione', 'Giordano Pietro', '845/2003', NULL);
INSERT INTO prot_registrazione VALUES (2003, 2, 'IN', 1, #02/07/2003#, 'Invito al convegno', 'Muscarà Claudio', '513/2003', NULL);
INSERT INTO prot_registrazione VALUES (2003, 2, 'IN', 2, #02/13/2003#, 'Trasmissione di documenti', 'Comune di Cesena', '645/2003', NULL);
INSERT INTO prot_registrazione VALUES (2003, 2, 'OUT', 3, #02/19/2003#, 'Invito al convegno', 'Costantini Enrico', NULL, 8);
INSERT INTO prot_registrazione VALUES (2003, 2, 'IN', 4, #02/25/2003#, 'Richiesta di certificato', 'Zanfrà Marco', '765/2003', NULL);
INSERT INTO prot_registrazione VALUES (2003, 2, 'IN', 5, #03/03/2003#, 'Sollecito della quota', 'Marchetti Gianluca', '306/2003', 3);
INSERT INTO prot_registrazione VALUES (2003, 3, 'IN', 1, #03/09/2003#, 'Parere sulla parcella', 'Zanfrà Marco', '155/2003', NULL);
INSERT INTO prot_registrazione VALUES (2003, 3, 'IN', 2, #03/15/2003#, 'Domanda di iscrizione', 'Costantini Enrico', '19/2003', NULL);
INSERT INTO prot_registrazione VALUES (2003, 3, 'IN', 3, #03/21/2003#, 'Comunicazione di variazione di indirizzo', 'Cassa di previdenza', '236/2003', NULL);
INSERT INTO prot_registrazione VALUES (2003, 3, 'OUT', 4, #03/27/2003#, 'Comunicazione di variazione di indirizzo', 'Pagano Marco', NULL, 5);
INSERT INTO prot_registrazione VALUES (2003, 3, 'OUT', 5, #04/02/2003#, 'Sollecito della quota', 'Tribunale di Forlì', NULL, NULL);
INSERT INTO prot_registrazione VALUES (2003, 4, 'IN', 1, #04/08/2003#, 'Invito al convegno', 'Muscarà Claudio', '451/2003', NULL);
INSERT INTO prot_registrazione VALUES (2003, 4, 'OUT', 2, #04/14/2003#, 'Trasmissione di documenti', 'Sartori Paolo', NULL, 3);
INSERT INTO prot_registrazione VALUES (2003, 4, 'OUT', 3, #04/20/2003#, 'Sollecito della quota', 'Cattaneo Beatrice', NULL, 8);
INSERT INTO prot_registrazione VALUES (2003, 4, 'IN', 4, #04/26/2003#, 'Comunicazione di variazione di indirizzo', 'Muscarà Pietro', '223/2003', NULL);
INSERT INTO prot_registrazione VALUES (2003, 4, 'IN', 5, #05/02/2003#, 'Domanda di iscrizione', 'Costantini Enrico', '795/2003', NULL);
INSERT INTO prot_registrazione VALUES (2003, 5, 'OUT', 1, #05/08/2003#, 'Invito al convegno', 'Morelli Filippo', NULL, 6);
INSERT INTO prot_registrazione VALUES (2003, 5, 'OUT', 2, #05/14/2003#, 'Parere sulla parcella', 'Giordano Pietro', NULL, 1);
INSERT INTO prot_registrazione VALUES (2003, 5, 'IN', 3, #05/20/2003#, 'Trasmissione di documenti', 'Tribunale di Forlì', '766/2003', NULL);
INSERT INTO prot_registrazione VALUES (2003, 5, 'IN', 4, #05/26/2003#, 'Parere sulla parcella', 'Sartori Paolo', '158/2003', NULL);
INSERT INTO prot_registrazione VALUES (2003, 5, 'IN', 5, #06/01/2003#, 'Domanda di iscrizione', 'Piras Francesco', '325/2003', 3);
INSERT INTO prot_registrazione VALUES (2003, 6, 'IN', 1, #06/07/2003#, 'Comunicazione di variazione di indirizzo', 'Dell''Orto Laura', '350/2003', NULL);
INSERT INTO prot_registrazione VALUES (2003, 6, 'IN', 2, #06/13/2003#, 'Invito al convegno', 'Valbonesi Anna', '244/2003', NULL);
INSERT INTO prot_registrazione VALUES (2003, 6, 'IN', 3, #06/19/2003#, 'Sollecito della quota', 'Cattaneo Beatrice', '804/2003', NULL);
INSERT INTO prot_registrazione VALUES (2003, 6, 'OUT', 4, #06/25/2003#, 'Richiesta di certificato', 'Ministero della giustizia', NULL, NULL);
INSERT INTO prot_registrazione VALUES (2003, 6, 'IN', 5, #07/01/2003#, 'Parere sulla parcella', 'Grasso Federica', '482/2003', NULL);
INSERT INTO prot_registrazione VALUES (2003, 7, 'IN', 1, #07/07/2003#, 'Domanda di iscrizione', 'Comune di Forlì', '335/2003', NULL);
INSERT INTO prot_registrazione VALUES (2003, 7, 'IN', 2, #07/13/2003#, 'Domanda di iscrizione', 'Comune di Forlì', '461/2003', NULL);
INSERT INTO prot_registrazione VALUES (2003, 7, 'OUT', 3, #07/19/2003#, 'Trasmissione di documenti', 'Santoro Alessandra', NULL, NULL);
INSERT INTO prot_registrazione VALUES (2003, 7, 'OUT', 4, #07/25/2003#, 'Sollecito della quota', 'Tribunale di Forlì', NULL, NULL);
INSERT INTO prot_registrazione VALUES (2003, 7, 'IN', 5, #07/31/2003#, 'Trasmissione di documenti', 'Barone Vincenzo', '18/2003', NULL);
INSERT INTO prot_registrazione VALUES (2003, 8, 'OUT', 1, #08/06/2003#, 'Sollecito della quota', 'Muscarà Claudio', NULL, NULL);
INSERT INTO prot_registrazione VALUES (2003, 8, 'IN', 2, #08/12/2003#, 'Domanda di iscrizione', 'Collegio dei geometri', '94/2003', 2);
INSERT INTO prot_registrazione VALUES (2003, 8, 'IN', 3, #08/18/2003#, 'Trasmissione di documenti', 'Provincia di Forlì-Cesena', '549/2003', 2);
INSERT INTO prot_registrazione VALUES (2003, 8, 'IN', 4, #08/24/2003#, 'Sollecito della quota', 'INPS - sede provinciale', '262/2003', 4);
INSERT INTO prot_registrazione VALUES (2003, 8, 'OUT', 5, #08/30/2003#, 'Parere sulla parcella', 'L''Abbate Luigi', NULL, 8);
INSERT INTO prot_registrazione VALUES (2003, 9, 'IN', 1, #09/05/2003#, 'Parere sulla parcella', 'Comune di Cesena', '231/2003', NULL);
INSERT INTO prot_registrazione VALUES (2003, 9, 'IN', 2, #09/11/2003#, 'Trasmissione di documenti', 'Comune di Cesena', '386/2003', NULL);
INSERT INTO prot_registrazione VALUES (2003, 9, 'OUT', 3, #09/17/2003#, 'Richiesta di certificato', 'Camera di commercio', NULL, 2);
INSERT INTO prot_registrazione VALUES (2003, 9, 'OUT', 4, #09/23/2003#, 'Richiesta di certificato', 'Marchetti Gianluca', NULL, 5);
INSERT INTO prot_registrazione VALUES (2003, 9, 'OUT', 5, #09/29/2003#, 'Parere sulla parcella', 'Provincia di Forlì-Cesena', NULL, 3);
INSERT INTO prot_registrazione VALUES (2003, 10, 'IN', 1, #10/05/2003#, 'Trasmissione di documenti', 'Martinelli Luigi', '812/2003', NULL);
INSERT INTO prot_registrazione VALUES (2003, 10, 'IN', 2, #10/11/2003#, 'Invito al convegno', 'Morelli Filippo', '297/2003', 4);
INSERT INTO prot_registrazione VALUES (2003, 10, 'IN', 3, #10/17/2003#, 'Parere sulla parcella', 'Caputo Anna', '111/2003', NULL);
INSERT INTO prot_registrazione VALUES (2003, 10, 'IN', 4, #10/23/2003#, 'Richiesta di certificato', 'Morelli Filippo', '452/2003', 2);
INSERT INTO prot_registrazione VALUES (2003, 10, 'IN', 5, #10/29/2003#, 'Trasmissione di documenti', 'Pagano Marco', '833/2003', 9);
INSERT INTO prot_registrazione VALUES (2003, 11, 'IN', 1, #11/04/2003#, 'Domanda di iscrizione', 'Dell''Orto Laura', '632/2003', NULL);
INSERT INTO prot_registrazione VALUES (2003, 11, 'IN', 2, #11/10/2003#, 'Richiesta di certificato', 'Ordine degli avvocati', '34/2003', NULL);
INSERT INTO prot_registrazione VALUES (2003, 11, 'IN', 3, #11/16/2003#, 'Trasmissione di documenti', 'Comune di Rimini', '155/2003', NULL);
INSERT INTO prot_registrazione VALUES (2003, 11, 'IN', 4, #11/22/2003#, 'Trasmissione di documenti', 'De Angelis Fabio', '230/2003', NULL);
INSERT INTO prot_registrazione VALUES (2003, 11, 'IN', 5, #11/28/2003#, 'Trasmissione di documenti', 'Sartori Paolo', '647/2003', 4);
INSERT INTO prot_registrazione VALUES (2003, 12, 'OUT', 1, #12/04/2003#, 'Sollecito della quota', 'Benedetti Silvia', NULL, 5);
INSERT INTO prot_registrazione VALUES (2003, 12, 'OUT', 2, #12/10/2003#, 'Sollecito della quota', 'Comune di Rimini', NULL, NULL);
INSERT INTO prot_registrazione VALUES (2003, 12, 'IN', 3, #12/16/2003#, 'Richiesta di certificato', 'Prefettura', '793/2003', 4);
INSERT INTO prot_registrazione VALUES (2003, 12, 'OUT', 4, #12/22/2003#, 'Invito al convegno', 'Santoro Alessandra', NULL, NULL);
INSERT INTO prot_registrazione VALUES (2003, 12, 'IN', 5, #12/28/2003#, 'Sollecito della quota', 'Comune di Forlì', '140/2003', NULL);
INSERT INTO prot_registrazione VALUES (2004, 1, 'IN', 1, #01/08/2004#, 'Domanda di iscrizione', 'Valbonesi Anna', '631/2004', NULL);
INSERT INTO prot_registrazione VALUES (2004, 1, 'IN', 2, #01/14/2004#, 'Invito al convegno', 'Pagano Marco', '358/2004', 1);
INSERT INTO prot_registrazione VALUES (2004, 1, 'OUT', 3, #01/20/2004#, 'Parere sulla parcella', 'Ordine degli avvocati', NULL, NULL);
INSERT INTO prot_registrazione VALUES (2004, 1, 'IN', 4, #01/26/2004#, 'Richiesta di certificato', 'Piras Francesco', '623/2004', NULL);
INSERT INTO prot_registrazione VALUES (2004, 1, 'IN', 5, #02/01/2004#, 'Richiesta di certificato', 'Riva Nicolò', '801/2004', 7);
INSERT INTO prot_registrazione VALUES (2004, 1, 'OUT', 6, #02/07/2004#, 'Invito al convegno', 'Riva Nicolò', NULL, 9);
INSERT INTO prot_registrazione VALUES (2004, 1, 'IN', 7, #02/13/2004#, 'Parere sulla parcella', 'Santoro Alessandra', '774/2004', 4);
INSERT INTO prot_registrazione VALUES (2004, 1, 'OUT', 8, #02/19/2004#, 'Parere sulla parcella', 'L''Abbate Luigi', NULL, NULL);
INSERT INTO prot_registrazione VALUES (2004, 1, 'IN', 9, #02/25/2004#, 'Invito al convegno', 'Ferrari Federica', '361/2004', NULL);
INSERT INTO prot_registrazione VALUES (2004, 1, 'OUT', 10, #03/02/2004#, 'Parere sulla parcella', 'De Angelis Fabio', NULL, NULL);
INSERT INTO prot_registrazione VALUES (2004, 1, 'OUT', 11, #03/08/2004#, 'Richiesta di certificato', 'Agenzia delle entrate - ufficio di Forlì', NULL, 1);
INSERT INTO prot_registrazione VALUES (2004, 1, 'IN', 12, #03/14/2004#, 'Parere sulla parcella', 'Caputo Anna', '799/2004', 9);
INSERT INTO prot_registrazione VALUES (2004, 1, 'IN', 13, #03/20/2004#, 'Comunicazione di variazione di indirizzo', 'Provincia di Forlì-Cesena', '790/2004', NULL);
INSERT INTO prot_registrazione VALUES (2004, 1, 'IN', 14, #03/26/2004#, 'Domanda di iscrizione', 'Santoro Alessandra', '814/2004', NULL);
INSERT INTO prot_registrazione VALUES (2004, 1, 'OUT', 15, #04/01/2004#, 'Richiesta di certificato', 'Muscarà Claudio', NULL, NULL);
INSERT INTO prot_registrazione VALUES (2004, 1, 'OUT', 16, #04/07/2004#, 'Domanda di iscrizione', 'Marchetti Gianluca', NULL, 7);
INSERT INTO prot_registrazione VALUES (2004, 1, 'OUT', 17, #04/13/2004#, 'Trasmissione di documenti', 'Santoro Alessandra', NULL, NULL);
INSERT INTO prot_registrazione VALUES (2004, 1, 'IN', 18, #04/19/2004#, 'Trasmissione di documenti', 'Bianchi Anna', '167/2004', 3);
INSERT INTO prot_registrazione VALUES (2004, 1, 'OUT', 19, #04/25/2004#, 'Trasmissione di documenti', 'Bianco Giosuè', NULL, 9);
INSERT INTO prot_registrazione VALUES (2004, 1, 'OUT', 20, #05/01/2004#, 'Comunicazione di variazione di indirizzo', 'Carbone Fabio', NULL, NULL);
INSERT INTO prot_registrazione VALUES (2004, 1, 'IN', 21, #05/07/2004#, 'Richiesta di certificato', 'Agenzia delle entrate - ufficio di Forlì', '463/2004', NULL);
INSERT INTO prot_registrazione VALUES (2004, 1, 'IN', 22, #05/13/2004#, 'Parere sulla parcella', 'Martinelli Luigi', '499/2004', NULL);
INSERT INTO prot_registrazione VALUES (2004, 1, 'OUT', 23, #05/19/2004#, 'Parere sulla parcella', 'Ferrari Federica', NULL, NULL);
INSERT INTO prot_registrazione VALUES (2004, 1, 'IN', 24, #05/25/2004#, 'Domanda di iscrizione', 'Camera di commercio', '242/2004', NULL);
INSERT INTO prot_registrazione VALUES (2004, 1, 'OUT', 25, #05/31/2004#, 'Trasmissione di documenti', 'Lombardo Anna', NULL, 6);
INSERT INTO prot_registrazione VALUES (2004, 1, 'IN', 26, #06/06/2004#, 'Sollecito della quota', 'Prefettura', '555/2004', 6);
INSERT INTO prot_registrazione VALUES (2004, 1, 'OUT', 27, #06/12/2004#, 'Richiesta di certificato', 'Coppola Pietro', NULL, NULL);
INSERT INTO prot_registrazione VALUES (2004, 1, 'IN', 28, #06/18/2004#, 'Domanda di iscrizione', 'Cattaneo Beatrice', '729/2004', NULL);
INSERT INTO prot_registrazione VALUES (2004, 1, 'OUT', 29, #06/24/2004#, 'Trasmissione di documenti', 'Coppola Pietro', NULL, NULL);
INSERT INTO prot_registrazione VALUES (2004, 1, 'OUT', 30, #06/30/2004#, 'Trasmissione di documenti', 'Riva Nicolò', NULL, 2);
INSERT INTO prot_registrazione VALUES (2004, 1, 'OUT', 31, #07/06/2004#, 'Comunicazione di variazione di indirizzo', 'Morelli Filippo', NULL, 9);
INSERT INTO prot_registrazione VALUES (2004, 1, 'IN', 32, #07/12/2004#, 'Domanda di iscrizione', 'Benedetti Silvia', '669/2004', 7);
INSERT INTO prot_registrazione VALUES (2004, 1, 'OUT', 33, #07/18/2004#, 'Domanda di iscrizione', 'Palumbo Vincenzo', NULL, NULL);
INSERT INTO prot_registrazione VALUES (2004, 1, 'IN', 34, #07/24/2004#, 'Comunicazione di variazione di indirizzo', 'Coppola Pietro', '11/2004', NULL);
INSERT INTO prot_registrazione VALUES (2004, 1, 'IN', 35, #07/30/2004#, 'Richiesta di certificato', 'Procura della Repubblica', '235/2004', 6);
INSERT INTO prot_registrazione VALUES (2004, 1, 'OUT', 36, #08/05/2004#, 'Comunicazione di variazione di indirizzo', 'Coppola Pietro', NULL, 3);
INSERT INTO prot_registrazione VALUES (2004, 1, 'IN', 37, #08/11/2004#, 'Parere sulla parcella', 'Bianco Giosuè', '792/2004', 4);
INSERT INTO prot_registrazione VALUES (2004, 1, 'IN', 38, #08/17/2004#, 'Parere sulla parcella', 'Caputo Anna', '868/2004', NULL);
INSERT INTO prot_registrazione VALUES (2004, 1, 'IN', 39, #08/23/2004#, 'Trasmissione di documenti', 'Collegio dei geometri', '523/2004', 8);
INSERT INTO prot_registrazione VALUES (2004, 1, 'IN', 40, #08/29/2004#, 'Trasmissione di documenti', 'Ferrari Federica', '90/2004', NULL);
INSERT INTO prot_registrazione VALUES (2004, 1, 'OUT', 41, #09/04/2004#, 'Domanda di iscrizione', 'Collegio dei geometri', NULL, NULL);
INSERT INTO prot_registrazione VALUES (2004, 1, 'OUT', 42, #09/10/2004#, 'Parere sulla parcella', 'Riva Nicolò', NULL, 2);
INSERT INTO prot_registrazione VALUES (2004, 1, 'IN', 43, #09/16/2004#, 'Parere sulla parcella', 'Sartori Paolo', '215/2004', NULL);
INSERT INTO prot_registrazione VALUES (2004, 1, 'OUT', 44, #09/22/2004#, 'Sollecito della quota', 'Bianchi Anna', NULL, 3);
INSERT INTO prot_registrazione VALUES (2004, 1, 'IN', 45, #09/28/2004#, 'Domanda di iscrizione', 'Ferrari Federica', '383/2004', NULL);
INSERT INTO prot_registrazione VALUES (2004, 1, 'IN', 46, #10/04/2004#, 'Domanda di iscrizione', 'Comune di Forlì', '653/2004', 7);
INSERT INTO prot_registrazione VALUES (2004, 1, 'IN', 47, #10/10/2004#, 'Trasmissione di documenti', 'Zanfrà Marco', '606/2004', NULL);
INSERT INTO prot_registrazione VALUES (2004, 1, 'OUT', 48, #10/16/2004#, 'Richiesta di certificato', 'Comune di Cesena', NULL, 1);
INSERT INTO prot_registrazione VALUES (2004, 1, 'IN', 49, #10/22/2004#, 'Domanda di iscrizione', 'Pagano Marco', '50/2004', 5);
INSERT INTO prot_registrazione VALUES (2004, 1, 'IN', 50, #10/28/2004#, 'Domanda di iscrizione', 'Marchetti Gianluca', '714/2004', NULL);
INSERT INTO prot_registrazione VALUES (2004, 1, 'OUT', 51, #11/03/2004#, 'Domanda di iscrizione', 'Costantini Enrico', NULL, NULL);
INSERT INTO prot_registrazione VALUES (2004, 1, 'IN', 52, #11/09/2004#, 'Invito al convegno', 'Morelli Filippo', '828/2004', NULL);
INSERT INTO prot_registrazione VALUES (2004, 1, 'IN', 53, #11/15/2004#, 'Domanda di iscrizione', 'Sartori Paolo', '24/2004', NULL);
INSERT INTO prot_registrazione VALUES (2004, 1, 'OUT', 54, #11/21/2004#, 'Richiesta di certificato', 'Santoro Alessandra', NULL, NULL);
INSERT INTO prot_registrazione VALUES (2004, 1, 'IN', 55, #11/27/2004#, 'Sollecito della quota', 'L''Abbate Luigi', '389/2004', NULL);
INSERT INTO prot_registrazione VALUES (2004, 1, 'OUT', 56, #12/03/2004#, 'Invito al convegno', 'Santoro Alessandra', NULL, NULL);
INSERT INTO prot_registrazione VALUES (2004, 1, 'OUT', 57, #12/09/2004#, 'Domanda di iscrizione', 'Pagano Marco', NULL, 9);
INSERT INTO prot_registrazione VALUES (2004, 1, 'OUT', 58, #12/15/2004#, 'Parere sulla parcella', 'Benedetti Silvia', NULL, 8);
INSERT INTO prot_registrazione VALUES (2004, 1, 'OUT', 59, #12/21/2004#, 'Parere sulla parcella', 'Cassa di previdenza', NULL, 2);
INSERT INTO prot_registrazione VALUES (2004, 1, 'IN', 60, #12/27/2004#, 'Parere sulla parcella', 'Università di Bologna - sede di Forlì', '472/2004', NULL);
INSERT INTO prot_registrazione VALUES (2005, 0, 'IN', 1, #01/08/2005#, 'Trasmissione di documenti', 'Tribunale di Forlì', '62/2005', NULL);
INSERT INTO prot_registrazione VALUES (2005, 0, 'OUT', 2, #01/14/2005#, 'Comunicazione di variazione di indirizzo', 'Cattaneo Beatrice', NULL, 8);
INSERT INTO prot_registrazione VALUES (2005, 0, 'IN', 3, #01/20/2005#, 'Domanda di iscrizione', 'Benedetti Silvia', '866/2005', 3);
INSERT INTO prot_registrazione VALUES (2005, 0, 'IN', 4, #01/26/2005#, 'Invito al convegno', 'Agenzia delle entrate - ufficio di Forlì', '850/2005', 3);
INSERT INTO prot_registrazione VALUES (2005, 0, 'OUT', 5, #02/01/2005#, 'Comunicazione di variazione di indirizzo', 'Caputo Anna', NULL, NULL);
INSERT INTO prot_registrazione VALUES (2005, 0, 'IN', 6, #02/07/2005#, 'Comunicazione di variazione di indirizzo', 'Riva Nicolò', '651/2005', NULL);
INSERT INTO prot_registrazione VALUES (2005, 0, 'IN', 7, #02/13/2005#, 'Parere sulla parcella', 'Martinelli Luigi', '84/2005', NULL);
INSERT INTO prot_registrazione VALUES (2005, 0, 'OUT', 8, #02/19/2005#, 'Sollecito della quota', 'Dell''Orto Laura', NULL, 4);
INSERT INTO prot_registrazione VALUES (2005, 0, 'IN', 9, #02/25/2005#, 'Sollecito della quota', 'Piras Francesco', '448/2005', NULL);
INSERT INTO prot_registrazione VALUES (2005, 0, 'OUT', 10, #03/03/2005#, 'Sollecito della quota', 'Bianchi Anna', NULL, 4);
INSERT INTO prot_registrazione VALUES (2005, 0, 'OUT', 11, #03/09/2005#, 'Parere sulla parcella', 'Pagano Marco', NULL, NULL);
INSERT INTO prot_registrazione VALUES (2005, 0, 'OUT', 12, #03/15/2005#, 'Invito al convegno', 'Ordine degli avvocati', NULL, NULL);
INSERT INTO prot_registrazione VALUES (2005, 0, 'IN', 13, #03/21/2005#, 'Domanda di iscrizione', 'Provincia di Forlì-Cesena', '572/2005', 3);
INSERT INTO prot_registrazione VALUES (2005, 0, 'OUT', 14, #03/27/2005#, 'Richiesta di certificato', 'Muscarà Claudio', NULL, NULL);
INSERT INTO prot_registrazione VALUES (2005, 0, 'IN', 15, #04/02/2005#, 'Parere sulla parcella', 'L''Abbate Luigi', '673/2005', NULL);
INSERT INTO prot_registrazione VALUES (2005, 0, 'IN', 16, #04/08/2005#, 'Trasmissione di documenti', 'Comune di Cesena', '203/2005', NULL);
INSERT INTO prot_registrazione VALUES (2005, 0, 'IN', 17, #04/14/2005#, 'Sollecito della quota', 'Lombardo Anna', '452/2005', 4);
INSERT INTO prot_registrazione VALUES (2005, 0, 'OUT', 18, #04/20/2005#, 'Trasmissione di documenti', 'Ferrari Federica', NULL, 2);
INSERT INTO prot_registrazione VALUES (2005, 0, 'OUT', 19, #04/26/2005#, 'Invito al convegno', 'Muscarà Claudio', NULL, 4);
INSERT INTO prot_registrazione VALUES (2005, 0, 'IN', 20, #05/02/2005#, 'Richiesta di certificato', 'Comune di Forlì', '618/2005', 6);
INSERT INTO prot_registrazione VALUES (2005, 0, 'OUT', 21, #05/08/2005#, 'Invito al convegno', 'Tribunale di Forlì', NULL, 9);
INSERT INTO prot_registrazione VALUES (2005, 0, 'IN', 22, #05/14/2005#, 'Parere sulla parcella', 'Comune di Forlì', '810/2005', 4);
INSERT INTO prot_registrazione VALUES (2005, 0, 'IN', 23, #05/20/2005#, 'Invito al convegno', 'Giordano Pietro', '292/2005', NULL);
INSERT INTO prot_registrazione VALUES (2005, 0, 'IN', 24, #05/26/2005#, 'Domanda di iscrizione', 'Muscarà Claudio', '749/2005', NULL);
INSERT INTO prot_registrazione VALUES (2005, 0, 'IN', 25, #06/01/2005#, 'Richiesta di certificato', 'Marchetti Gianluca', '516/2005', NULL);
INSERT INTO prot_registrazione VALUES (2005, 0, 'OUT', 26, #06/07/2005#, 'Comunicazione di variazione di indirizzo', 'Collegio dei geometri', NULL, 3);
INSERT INTO prot_registrazione VALUES (2005, 0, 'OUT', 27, #06/13/2005#, 'Sollecito della quota', 'Pagano Marco', NULL, 9);
INSERT INTO prot_registrazione VALUES (2005, 0, 'OUT', 28, #06/19/2005#, 'Domanda di iscrizione', 'Bianco Giosuè', NULL, 8);
INSERT INTO prot_registrazione VALUES (2005, 0, 'IN', 29, #06/25/2005#, 'Comunicazione di variazione di indirizzo', 'Grasso Federica', '297/2005', NULL);
INSERT INTO prot_registrazione VALUES (2005, 0, 'IN', 30, #07/01/2005#, 'Richiesta di certificato', 'Comune di Forlì', '340/2005', NULL);
INSERT INTO prot_registrazione VALUES (2005, 0, 'OUT', 31, #07/07/2005#, 'Parere sulla parcella', 'Università di Bologna - sede di Forlì', NULL, NULL);
INSERT INTO prot_registrazione VALUES (2005, 0, 'OUT', 32, #07/13/2005#, 'Sollecito della quota', 'Provincia di Forlì-Cesena', NULL, 2);
INSERT INTO prot_registrazione VALUES (2005, 0, 'IN', 33, #07/19/2005#, 'Trasmissione di documenti', 'Zanfrà Marco', '797/2005', 7);
INSERT INTO prot_registrazione VALUES (2005, 0, 'IN', 34, #07/25/2005#, 'Richiesta di certificato', 'Morelli Filippo', '767/2005', 6);
INSERT INTO prot_registrazione VALUES (2005, 0, 'OUT', 35, #07/31/2005#, 'Parere sulla parcella', 'Palumbo Vincenzo', NULL, NULL);
INSERT INTO prot_registrazione VALUES (2005, 0, 'OUT', 36, #08/06/2005#, 'Domanda di iscrizione', 'Marchetti Gianluca', NULL, NULL);
INSERT INTO prot_registrazione VALUES (2005, 0, 'OUT', 37, #08/12/2005#, 'Parere sulla parcella', 'Coppola Pietro', NULL, 5);
INSERT INTO prot_registrazione VALUES (2005, 0, 'OUT', 38, #08/18/2005#, 'Invito al convegno', 'Martinelli Luigi', NULL, 3);
INSERT INTO prot_registrazione VALUES (2005, 0, 'IN', 39, #08/24/2005#, 'Domanda di iscrizione', 'Procura della Repubblica', '673/2005', NULL);
INSERT INTO prot_registrazione VALUES (2005, 0, 'IN', 40, #08/30/2005#, 'Parere sulla parcella', 'Caputo Anna', '392/2005', NULL);
INSERT INTO prot_registrazione VALUES (2005, 0, 'IN', 41, #09/05/2005#, 'Richiesta di certificato', 'Grasso Federica', '315/2005', NULL);
INSERT INTO prot_registrazione VALUES (2005, 0, 'IN', 42, #09/11/2005#, 'Sollecito della quota', 'Cassa di previdenza', '255/2005', 5);
INSERT INTO prot_registrazione VALUES (2005, 0, 'OUT', 43, #09/17/2005#, 'Parere sulla parcella', 'Tribunale di Forlì', NULL, NULL);
INSERT INTO prot_registrazione VALUES (2005, 0, 'OUT', 44, #09/23/2005#, 'Domanda di iscrizione', 'Dell''Orto Laura', NULL, 5);
INSERT INTO prot_registrazione VALUES (2005, 0, 'IN', 45, #09/29/2005#, 'Parere sulla parcella', 'Piras Francesco', '483/2005', 2);
INSERT INTO prot_registrazione VALUES (2005, 0, 'IN', 46, #10/05/2005#, 'Sollecito della quota', 'Coppola Pietro', '835/2005', 9);
INSERT INTO prot_registrazione VALUES (2005, 0, 'OUT', 47, #10/11/2005#, 'Domanda di iscrizione', 'Lombardo Anna', NULL, 2);
INSERT INTO prot_registrazione VALUES (2005, 0, 'OUT', 48, #10/17/2005#, 'Parere sulla parcella', 'Bianchi Anna', NULL, 8);
INSERT INTO prot_registrazione VALUES (2005, 0, 'OUT', 49, #10/23/2005#, 'Comunicazione di variazione di indirizzo', 'Giordano Pietro', NULL, 7);
INSERT INTO prot_registrazione VALUES (2005, 0, 'OUT', 50, #10/29/2005#, 'Domanda di iscrizione', 'Giordano Pietro', NULL, NULL);
INSERT INTO prot_registrazione VALUES (2005, 0, 'OUT', 51, #11/04/2005#, 'Trasmissione di documenti', 'INPS - sede provinciale', NULL, NULL);
INSERT INTO prot_registrazione VALUES (2005, 0, 'IN', 52, #11/10/2005#, 'Richiesta di certificato', 'Sartori Paolo', '699/2005', 7);
INSERT INTO prot_registrazione VALUES (2005, 0, 'IN', 53, #11/16/2005#, 'Sollecito della quota', 'Cattaneo Beatrice', '265/2005', NULL);
INSERT INTO prot_registrazione VALUES (2005, 0, 'OUT', 54, #11/22/2005#, 'Richiesta di certificato', 'Agenzia delle entrate - ufficio di Forlì', NULL, NULL);
INSERT INTO prot_registrazione VALUES (2005, 0, 'IN', 55, #11/28/2005#, 'Invito al convegno', 'Muscarà Claudio', '611/2005', 1);
INSERT INTO prot_registrazione VALUES (2005, 0, 'OUT', 56, #12/04/2005#, 'Invito al convegno', 'Bianchi Anna', NULL, 4);
INSERT INTO prot_registrazione VALUES (2005, 0, 'IN', 57, #12/10/2005#, 'Comunicazione di variazione di indirizzo', 'Caputo Anna', '793/2005', NULL);
INSERT INTO prot_registrazione VALUES (2005, 0, 'IN', 58, #12/16/2005#, 'Domanda di iscrizione', 'Lombardo Anna', '795/2005', 9);
INSERT INTO prot_registrazione VALUES (2005, 0, 'OUT', 59, #12/22/2005#, 'Sollecito della quota', 'L''Abbate Luigi', NULL, NULL);
INSERT INTO prot_registrazione VALUES (2005, 0, 'OUT', 60, #12/28/2005#, 'Trasmissione di documenti', 'Valbonesi Anna', NULL, 2);

CREATE TABLE prot_reg_contenuti (
  anno SHORT NOT NULL,
  mese SHORT NOT NULL,
  tipo TEXT(3) NOT NULL,
  id_prot LONG NOT NULL,
  progressivo SHORT NOT NULL,
  cd_argomento LONG,
  ds_contenuto TEXT(120),
  ds_file TEXT(120),
  CONSTRAINT PrimaryKey PRIMARY KEY (anno, mese, tipo, id_prot, progressivo));
ALTER TABLE prot_reg_contenuti ADD CONSTRAINT prot_argomenti_contenuti
  FOREIGN KEY (cd_argomento) REFERENCES prot_argomenti (cd_argomento);

INSERT INTO prot_reg_contenuti VALUES (2003, 1, 'IN', 1, 1, 1, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2003, 1, 'OUT', 2, 1, 1, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2003, 1, 'OUT', 3, 1, 3, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2003, 1, 'OUT', 4, 1, 4, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2003, 1, 'IN', 5, 1, 3, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2003, 2, 'IN', 1, 1, 2, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2003, 2, 'IN', 2, 1, 3, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2003, 2, 'OUT', 3, 1, 3, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2003, 2, 'IN', 4, 1, 1, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2003, 2, 'IN', 5, 1, 2, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2003, 3, 'IN', 1, 1, 3, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2003, 3, 'IN', 2, 1, 1, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2003, 3, 'IN', 3, 1, 2, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2003, 3, 'OUT', 4, 1, 4, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2003, 3, 'OUT', 5, 1, 2, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2003, 4, 'IN', 1, 1, 1, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2003, 4, 'OUT', 2, 1, 1, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2003, 4, 'OUT', 3, 1, 10, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2003, 4, 'IN', 4, 1, 1, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2003, 4, 'IN', 5, 1, 10, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2003, 5, 'OUT', 1, 1, 4, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2003, 5, 'OUT', 2, 1, 4, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2003, 5, 'IN', 3, 1, 3, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2003, 5, 'IN', 4, 1, 4, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2003, 5, 'IN', 5, 1, 3, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2003, 6, 'IN', 1, 1, 4, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2003, 6, 'IN', 2, 1, 3, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2003, 6, 'IN', 3, 1, 4, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2003, 6, 'OUT', 4, 1, 10, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2003, 6, 'IN', 5, 1, 3, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2003, 7, 'IN', 1, 1, 3, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2003, 7, 'IN', 2, 1, 10, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2003, 7, 'OUT', 3, 1, 10, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2003, 7, 'OUT', 4, 1, 4, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2003, 7, 'IN', 5, 1, 3, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2003, 8, 'OUT', 1, 1, 1, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2003, 8, 'IN', 2, 1, 1, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2003, 8, 'IN', 3, 1, 4, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2003, 8, 'IN', 4, 1, 1, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2003, 8, 'OUT', 5, 1, 4, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2003, 9, 'IN', 1, 1, 3, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2003, 9, 'IN', 2, 1, 2, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2003, 9, 'OUT', 3, 1, 10, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2003, 9, 'OUT', 4, 1, 4, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2003, 9, 'OUT', 5, 1, 10, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2003, 10, 'IN', 1, 1, 10, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2003, 10, 'IN', 2, 1, 4, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2003, 10, 'IN', 3, 1, 2, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2003, 10, 'IN', 4, 1, 10, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2003, 10, 'IN', 5, 1, 2, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2003, 11, 'IN', 1, 1, 10, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2003, 11, 'IN', 2, 1, 1, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2003, 11, 'IN', 3, 1, 1, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2003, 11, 'IN', 4, 1, 1, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2003, 11, 'IN', 5, 1, 1, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2003, 12, 'OUT', 1, 1, 1, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2003, 12, 'OUT', 2, 1, 1, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2003, 12, 'IN', 3, 1, 4, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2003, 12, 'OUT', 4, 1, 3, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2003, 12, 'IN', 5, 1, 3, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2004, 1, 'IN', 1, 1, 1, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2004, 1, 'IN', 2, 1, 10, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2004, 1, 'OUT', 3, 1, 2, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2004, 1, 'IN', 4, 1, 3, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2004, 1, 'IN', 5, 1, 2, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2004, 1, 'OUT', 6, 1, 4, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2004, 1, 'IN', 7, 1, 3, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2004, 1, 'OUT', 8, 1, 1, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2004, 1, 'IN', 9, 1, 1, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2004, 1, 'OUT', 10, 1, 3, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2004, 1, 'OUT', 11, 1, 1, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2004, 1, 'IN', 12, 1, 1, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2004, 1, 'IN', 13, 1, 1, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2004, 1, 'IN', 14, 1, 1, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2004, 1, 'OUT', 15, 1, 2, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2004, 1, 'OUT', 16, 1, 10, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2004, 1, 'OUT', 17, 1, 2, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2004, 1, 'IN', 18, 1, 2, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2004, 1, 'OUT', 19, 1, 1, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2004, 1, 'OUT', 20, 1, 4, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2004, 1, 'IN', 21, 1, 10, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2004, 1, 'IN', 22, 1, 1, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2004, 1, 'OUT', 23, 1, 10, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2004, 1, 'IN', 24, 1, 3, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2004, 1, 'OUT', 25, 1, 4, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2004, 1, 'IN', 26, 1, 1, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2004, 1, 'OUT', 27, 1, 10, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2004, 1, 'IN', 28, 1, 3, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2004, 1, 'OUT', 29, 1, 3, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2004, 1, 'OUT', 30, 1, 4, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2004, 1, 'OUT', 31, 1, 10, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2004, 1, 'IN', 32, 1, 1, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2004, 1, 'OUT', 33, 1, 3, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2004, 1, 'IN', 34, 1, 3, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2004, 1, 'IN', 35, 1, 3, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2004, 1, 'OUT', 36, 1, 4, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2004, 1, 'IN', 37, 1, 4, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2004, 1, 'IN', 38, 1, 2, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2004, 1, 'IN', 39, 1, 1, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2004, 1, 'IN', 40, 1, 3, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2004, 1, 'OUT', 41, 1, 4, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2004, 1, 'OUT', 42, 1, 4, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2004, 1, 'IN', 43, 1, 4, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2004, 1, 'OUT', 44, 1, 4, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2004, 1, 'IN', 45, 1, 10, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2004, 1, 'IN', 46, 1, 10, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2004, 1, 'IN', 47, 1, 3, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2004, 1, 'OUT', 48, 1, 4, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2004, 1, 'IN', 49, 1, 2, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2004, 1, 'IN', 50, 1, 10, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2004, 1, 'OUT', 51, 1, 3, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2004, 1, 'IN', 52, 1, 4, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2004, 1, 'IN', 53, 1, 1, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2004, 1, 'OUT', 54, 1, 2, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2004, 1, 'IN', 55, 1, 4, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2004, 1, 'OUT', 56, 1, 4, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2004, 1, 'OUT', 57, 1, 10, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2004, 1, 'OUT', 58, 1, 1, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2004, 1, 'OUT', 59, 1, 2, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2004, 1, 'IN', 60, 1, 10, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2005, 0, 'IN', 1, 1, 1, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2005, 0, 'OUT', 2, 1, 10, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2005, 0, 'IN', 3, 1, 3, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2005, 0, 'IN', 4, 1, 1, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2005, 0, 'OUT', 5, 1, 1, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2005, 0, 'IN', 6, 1, 1, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2005, 0, 'IN', 7, 1, 3, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2005, 0, 'OUT', 8, 1, 3, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2005, 0, 'IN', 9, 1, 4, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2005, 0, 'OUT', 10, 1, 2, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2005, 0, 'OUT', 11, 1, 1, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2005, 0, 'OUT', 12, 1, 2, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2005, 0, 'IN', 13, 1, 4, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2005, 0, 'OUT', 14, 1, 2, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2005, 0, 'IN', 15, 1, 3, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2005, 0, 'IN', 16, 1, 4, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2005, 0, 'IN', 17, 1, 10, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2005, 0, 'OUT', 18, 1, 3, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2005, 0, 'IN', 19, 1, 1, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2005, 0, 'IN', 20, 1, 4, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2005, 0, 'OUT', 21, 1, 3, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2005, 0, 'IN', 22, 1, 3, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2005, 0, 'IN', 23, 1, 2, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2005, 0, 'IN', 24, 1, 2, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2005, 0, 'IN', 25, 1, 2, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2005, 0, 'OUT', 26, 1, 3, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2005, 0, 'OUT', 27, 1, 1, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2005, 0, 'OUT', 28, 1, 1, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2005, 0, 'IN', 29, 1, 1, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2005, 0, 'IN', 30, 1, 4, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2005, 0, 'IN', 31, 1, 1, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2005, 0, 'OUT', 32, 1, 3, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2005, 0, 'IN', 33, 1, 2, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2005, 0, 'IN', 34, 1, 2, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2005, 0, 'OUT', 35, 1, 2, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2005, 0, 'OUT', 36, 1, 2, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2005, 0, 'IN', 37, 1, 3, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2005, 0, 'OUT', 38, 1, 4, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2005, 0, 'IN', 39, 1, 1, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2005, 0, 'IN', 40, 1, 4, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2005, 0, 'IN', 41, 1, 3, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2005, 0, 'IN', 42, 1, 1, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2005, 0, 'IN', 43, 1, 1, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2005, 0, 'OUT', 44, 1, 10, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2005, 0, 'IN', 45, 1, 2, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2005, 0, 'IN', 46, 1, 2, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2005, 0, 'OUT', 47, 1, 2, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2005, 0, 'OUT', 48, 1, 2, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2005, 0, 'IN', 49, 1, 3, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2005, 0, 'OUT', 50, 1, 2, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2005, 0, 'OUT', 51, 1, 1, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2005, 0, 'IN', 52, 1, 10, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2005, 0, 'IN', 53, 1, 10, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2005, 0, 'OUT', 54, 1, 1, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2005, 0, 'IN', 55, 1, 1, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2005, 0, 'OUT', 56, 1, 2, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2005, 0, 'IN', 57, 1, 10, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2005, 0, 'IN', 58, 1, 1, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2005, 0, 'OUT', 59, 1, 10, 'Lettera', NULL);
INSERT INTO prot_reg_contenuti VALUES (2005, 0, 'OUT', 60, 1, 4, 'Lettera', NULL);

CREATE TABLE prot_interno (
  anno SHORT NOT NULL,
  mese SHORT NOT NULL,
  id_prot LONG NOT NULL,
  dt_registrazione DATETIME,
  ds_oggetto TEXT(120),
  ds_ufficio TEXT(40),
  CONSTRAINT PrimaryKey PRIMARY KEY (anno, mese, id_prot));

INSERT INTO prot_interno VALUES (2003, 1, 1, #02/01/2003#, 'Verbale di consiglio', 'Segreteria');
INSERT INTO prot_interno VALUES (2003, 2, 1, #02/21/2003#, 'Verbale di consiglio', 'Segreteria');
INSERT INTO prot_interno VALUES (2003, 3, 1, #03/13/2003#, 'Verbale di consiglio', 'Segreteria');
INSERT INTO prot_interno VALUES (2003, 4, 1, #04/02/2003#, 'Verbale di consiglio', 'Segreteria');
INSERT INTO prot_interno VALUES (2003, 5, 1, #04/22/2003#, 'Verbale di consiglio', 'Segreteria');
INSERT INTO prot_interno VALUES (2003, 6, 1, #05/12/2003#, 'Verbale di consiglio', 'Segreteria');
INSERT INTO prot_interno VALUES (2003, 7, 1, #06/01/2003#, 'Verbale di consiglio', 'Segreteria');
INSERT INTO prot_interno VALUES (2003, 8, 1, #06/21/2003#, 'Verbale di consiglio', 'Segreteria');
INSERT INTO prot_interno VALUES (2004, 1, 1, #02/01/2004#, 'Verbale di consiglio', 'Segreteria');
INSERT INTO prot_interno VALUES (2004, 1, 2, #02/21/2004#, 'Verbale di consiglio', 'Segreteria');
INSERT INTO prot_interno VALUES (2004, 1, 3, #03/12/2004#, 'Verbale di consiglio', 'Segreteria');
INSERT INTO prot_interno VALUES (2004, 1, 4, #04/01/2004#, 'Verbale di consiglio', 'Segreteria');
INSERT INTO prot_interno VALUES (2004, 1, 5, #04/21/2004#, 'Verbale di consiglio', 'Segreteria');
INSERT INTO prot_interno VALUES (2004, 1, 6, #05/11/2004#, 'Verbale di consiglio', 'Segreteria');
INSERT INTO prot_interno VALUES (2004, 1, 7, #05/31/2004#, 'Verbale di consiglio', 'Segreteria');
INSERT INTO prot_interno VALUES (2004, 1, 8, #06/20/2004#, 'Verbale di consiglio', 'Segreteria');
INSERT INTO prot_interno VALUES (2005, 0, 1, #02/01/2005#, 'Verbale di consiglio', 'Segreteria');
INSERT INTO prot_interno VALUES (2005, 0, 2, #02/21/2005#, 'Verbale di consiglio', 'Segreteria');
INSERT INTO prot_interno VALUES (2005, 0, 3, #03/13/2005#, 'Verbale di consiglio', 'Segreteria');
INSERT INTO prot_interno VALUES (2005, 0, 4, #04/02/2005#, 'Verbale di consiglio', 'Segreteria');
INSERT INTO prot_interno VALUES (2005, 0, 5, #04/22/2005#, 'Verbale di consiglio', 'Segreteria');
INSERT INTO prot_interno VALUES (2005, 0, 6, #05/12/2005#, 'Verbale di consiglio', 'Segreteria');
INSERT INTO prot_interno VALUES (2005, 0, 7, #06/01/2005#, 'Verbale di consiglio', 'Segreteria');
INSERT INTO prot_interno VALUES (2005, 0, 8, #06/21/2005#, 'Verbale di consiglio', 'Segreteria');

CREATE TABLE prot_int_contenuti (
  anno SHORT NOT NULL,
  mese SHORT NOT NULL,
  id_prot LONG NOT NULL,
  progressivo SHORT NOT NULL,
  CONSTRAINT PrimaryKey PRIMARY KEY (anno, mese, id_prot, progressivo));

INSERT INTO prot_int_contenuti VALUES (2003, 1, 1, 1);
INSERT INTO prot_int_contenuti VALUES (2003, 2, 1, 1);
INSERT INTO prot_int_contenuti VALUES (2003, 3, 1, 1);
INSERT INTO prot_int_contenuti VALUES (2003, 4, 1, 1);
INSERT INTO prot_int_contenuti VALUES (2003, 5, 1, 1);
INSERT INTO prot_int_contenuti VALUES (2003, 6, 1, 1);
INSERT INTO prot_int_contenuti VALUES (2003, 7, 1, 1);
INSERT INTO prot_int_contenuti VALUES (2003, 8, 1, 1);
INSERT INTO prot_int_contenuti VALUES (2004, 1, 1, 1);
INSERT INTO prot_int_contenuti VALUES (2004, 1, 2, 1);
INSERT INTO prot_int_contenuti VALUES (2004, 1, 3, 1);
INSERT INTO prot_int_contenuti VALUES (2004, 1, 4, 1);
INSERT INTO prot_int_contenuti VALUES (2004, 1, 5, 1);
INSERT INTO prot_int_contenuti VALUES (2004, 1, 6, 1);
INSERT INTO prot_int_contenuti VALUES (2004, 1, 7, 1);
INSERT INTO prot_int_contenuti VALUES (2004, 1, 8, 1);
INSERT INTO prot_int_contenuti VALUES (2005, 0, 1, 1);
INSERT INTO prot_int_contenuti VALUES (2005, 0, 2, 1);
INSERT INTO prot_int_contenuti VALUES (2005, 0, 3, 1);
INSERT INTO prot_int_contenuti VALUES (2005, 0, 4, 1);
INSERT INTO prot_int_contenuti VALUES (2005, 0, 5, 1);
INSERT INTO prot_int_contenuti VALUES (2005, 0, 6, 1);
INSERT INTO prot_int_contenuti VALUES (2005, 0, 7, 1);
INSERT INTO prot_int_contenuti VALUES (2005, 0, 8, 1);

CREATE TABLE prot_sviluppo_liste (
  anno SHORT NOT NULL,
  mese SHORT NOT NULL,
  tipo TEXT(3) NOT NULL,
  id_prot LONG NOT NULL,
  progressivo SHORT NOT NULL,
  cd_classe TEXT(1),
  cd_matr LONG,
  ds_nominativo TEXT(80),
  CONSTRAINT PrimaryKey PRIMARY KEY (anno, mese, tipo, id_prot, progressivo));

INSERT INTO prot_sviluppo_liste VALUES (2004, 1, 'OUT', 25, 1, 'C', 26, 'Giordano Pietro');
INSERT INTO prot_sviluppo_liste VALUES (2004, 1, 'OUT', 25, 2, 'C', 27, 'Benedetti Silvia');
INSERT INTO prot_sviluppo_liste VALUES (2005, 0, 'OUT', 37, 1, 'C', 38, 'Marchetti Pietro');
INSERT INTO prot_sviluppo_liste VALUES (2005, 0, 'OUT', 37, 2, 'C', 39, 'Dell''Orto Enrico');
INSERT INTO prot_sviluppo_liste VALUES (2005, 0, 'OUT', 49, 1, 'C', 50, 'D''Angelo Roberto');
INSERT INTO prot_sviluppo_liste VALUES (2005, 0, 'OUT', 49, 2, 'C', 51, 'Vitali Giovanni');
