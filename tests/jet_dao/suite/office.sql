-- A register office in small: the tables that the suite's statements name, with a few rows each.

CREATE TABLE KEPGenerali (Nome TEXT(50), Valore TEXT(255), [Note] MEMO);
INSERT INTO KEPGenerali VALUES ('AppName', 'ORDCOMMEC', Null);
INSERT INTO KEPGenerali VALUES ('DBVersione', '0014', 'prima');
INSERT INTO KEPGenerali VALUES ('Tellaro[1]', Null, Null);

CREATE TABLE italia_comuni (ISTAT TEXT(6), Comune TEXT(50), PROVINCIA TEXT(2), DataFine DATETIME);
INSERT INTO italia_comuni VALUES ('037006', 'Bologna', 'BO', #1/1/2001#);
INSERT INTO italia_comuni VALUES ('037006', 'Bologna', 'BO', Null);
INSERT INTO italia_comuni VALUES ('011001', 'Sant''Agata', 'SP', Null);

CREATE TABLE CampiTabella (Norvo TEXT(20), Tabella TEXT(50), Campo TEXT(50));
INSERT INTO CampiTabella VALUES ('Tutti', 'ragioniere', 'nr_elenco');
INSERT INTO CampiTabella VALUES ('ORDCOMMEC', 'RAGIONIERE', 'Set');
INSERT INTO CampiTabella VALUES ('ALTRO', 'enti', 'n');

CREATE TABLE CampiDaEliminare (Norvo TEXT(20), Tabella TEXT(50), Campo TEXT(50));
INSERT INTO CampiDaEliminare VALUES ('Tutti', 'enti', 'x');
INSERT INTO CampiDaEliminare VALUES ('ALTRO', 'gruppi', 'y');

CREATE TABLE Indici (Norvo TEXT(20), Tabella TEXT(50), Indice TEXT(50));
INSERT INTO Indici VALUES ('Tutti', 'enti', 'PrimaryKey');
INSERT INTO Indici VALUES ('ALTRO', 'gruppi', 'PrimaryKey');

CREATE TABLE CampiIndice (Norvo TEXT(20), Tabella TEXT(50), Indice TEXT(50), Campo TEXT(50));
INSERT INTO CampiIndice VALUES ('Tutti', 'enti', 'PrimaryKey', 'n');
INSERT INTO CampiIndice VALUES ('Tutti', 'gruppi', 'PrimaryKey', 'n');

CREATE TABLE Relazioni (Norvo TEXT(20), Relazione TEXT(50));
INSERT INTO Relazioni VALUES ('ALTRO', 'r0');
INSERT INTO Relazioni VALUES ('ordcommec', 'r1');

CREATE TABLE CampiRelazione (Norvo TEXT(20), Relazione TEXT(50), Nome TEXT(50));
INSERT INTO CampiRelazione VALUES ('Tutti', 'r1', 'cd_matr');
INSERT INTO CampiRelazione VALUES ('Tutti', 'r2', 'cd_gruppo');

CREATE TABLE Descrizioni (Tabella TEXT(50), Campo TEXT(50), Descrizione TEXT(255));
INSERT INTO Descrizioni VALUES ('ragioniere', 'Set', 'sezione');
INSERT INTO Descrizioni VALUES ('enti', 'n', 'numero');

CREATE TABLE DescrizioniTabella (Tabella TEXT(50), Descrizione TEXT(255));
INSERT INTO DescrizioniTabella VALUES ('enti', 'gli enti');

CREATE TABLE tb_quote (n LONG, ip_quota_g DOUBLE, ip_quota_gEuro DOUBLE, ip_quota_sEuro DOUBLE,
  fl_nascita BIT, fl_iscrizione BIT);
INSERT INTO tb_quote VALUES (1, 100000, 0, Null, False, False);
INSERT INTO tb_quote VALUES (2, 0, 0, 0, False, False);
INSERT INTO tb_quote VALUES (3, 0, 51.65, 0, True, True);
INSERT INTO tb_quote VALUES (4, Null, Null, 10, True, False);

CREATE TABLE tb_quote_param (chiave TEXT(10));
INSERT INTO tb_quote_param VALUES ('01');
INSERT INTO tb_quote_param VALUES ('02');

CREATE TABLE tb_quote_mora (quota CURRENCY);

CREATE TABLE quote_pagate (quota CURRENCY);

CREATE TABLE quote_param (quota CURRENCY);

CREATE TABLE quote_dovute (cd_matr LONG, quota CURRENCY);
INSERT INTO quote_dovute VALUES (2, 51.6457);

CREATE TABLE tb_compenso (compenso CURRENCY);

CREATE TABLE ragioniere (cd_matr LONG CONSTRAINT pk PRIMARY KEY, nr_norvo SHORT, nr_collegio LONG,
  nr_elenco LONG, ds_cognome TEXT(40), ds_cognome_ric TEXT(40), [Set] TEXT(1), nr_sezione LONG,
  Nr_SezioneB LONG, cd_classe TEXT(1), cd_stato_attuale TEXT(2), cd_stato_elenco TEXT(2),
  fl_iscritto_elenco BIT, dt_iscrizione DATETIME, dt_anzianita DATETIME, ds_anzianita TEXT(100),
  dt_prima_iscrizione DATETIME, cd_domanda LONG, cd_domanda_elenco LONG, dt_abilitazione DATETIME,
  ds_sessione_esame TEXT(4), DatiProfessionali MEMO, Settori MEMO, SettoriExt MEMO, fl_old_ordinamento BIT,
  fl_spedizione TEXT(1), fl_web BIT, fl_norvo_unico BIT, cd_norvo_unico LONG, note_norvo_unico MEMO,
  cd_fiscale TEXT(16), [legge494/96] BIT, fl_zona1 BIT, zona_pref1 SHORT, comune_pref1 TEXT(30),
  prov_pref1 TEXT(2), fl_zona2 BIT, zona_pref2 SHORT, comune_pref2 TEXT(30), prov_pref2 TEXT(2), fl_zona3 BIT,
  zona_pref3 SHORT, comune_pref3 TEXT(30), prov_pref3 TEXT(2));
INSERT INTO ragioniere (cd_matr, nr_norvo, nr_collegio, nr_elenco, ds_cognome, [Set], nr_sezione, Nr_SezioneB,
  cd_classe, cd_stato_attuale, dt_anzianita, cd_domanda, cd_domanda_elenco, dt_abilitazione,
  DatiProfessionali, Settori, zona_pref1, comune_pref1, prov_pref1, cd_fiscale)
  VALUES (1, 1, 101, 0, 'D''Amico', 'A', 0, Null, 'C', 'IS', #1/10/2000#, 0, 0, #11/20/1999#, 'Perito', '', 3,
  Null, 'BO', 'DMC');
INSERT INTO ragioniere (cd_matr, nr_norvo, nr_collegio, nr_elenco, ds_cognome, ds_cognome_ric, [Set],
  nr_sezione, Nr_SezioneB, cd_classe, cd_stato_attuale, cd_stato_elenco, fl_iscritto_elenco,
  dt_prima_iscrizione, cd_domanda, cd_domanda_elenco, ds_anzianita, fl_spedizione, [legge494/96], fl_zona2,
  zona_pref2, comune_pref2, prov_pref2) VALUES (2, 1, 102, 7, 'Bianchi', 'bianchi', 'B', 9, 12, 'C', 'CA',
  'SO', True, #5/5/1995#, 0, 0, '', '1', True, True, 0, 'Carpi', 'MO');
INSERT INTO ragioniere (cd_matr, nr_norvo, nr_collegio, nr_elenco, ds_cognome, ds_cognome_ric, [Set],
  nr_sezione, Nr_SezioneB, cd_classe, cd_stato_attuale, cd_stato_elenco, fl_iscritto_elenco,
  dt_prima_iscrizione, cd_domanda, cd_domanda_elenco, ds_anzianita, fl_spedizione, [legge494/96], fl_zona2,
  zona_pref2, comune_pref2, prov_pref2) VALUES (3, 1, 102, 7, 'Verdi', ' ', 'A', 0, 0, 'C', 'IS', 'IS', False,
  Null, 5, 0, 'Iscritto', Null, False, False, Null, '', 'MO');

CREATE TABLE status_ragioniere (n LONG, cd_matr LONG, cd_evento TEXT(2), cd_tip_evento TEXT(2),
  cd_mot_evento TEXT(2), dt_evento DATETIME, dt_dec_canc DATETIME, dt_fine_sosp DATETIME, nr_evento LONG,
  nr_norvo SHORT, nr_sospensione LONG, fl_sosp_futura BIT, nr_protocollo TEXT(10), nr_collegio LONG,
  fl_iscritto_elenco BIT);
INSERT INTO status_ragioniere (n, cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_dec_canc,
  nr_evento, nr_norvo, nr_sospensione, fl_sosp_futura, nr_protocollo, nr_collegio)
  VALUES (1, 1, 'AL', 'IS', 'IS', #1/10/2000#, Null, 1, 1, 0, False, 'p1', 101);
INSERT INTO status_ragioniere (n, cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_dec_canc,
  nr_evento, nr_norvo, nr_sospensione, fl_sosp_futura, nr_protocollo, nr_collegio)
  VALUES (2, 1, 'AL', 'IS', 'SO', #3/1/2004#, #4/1/2004#, 2, 1, 1, False, Null, 101);
INSERT INTO status_ragioniere (n, cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_dec_canc,
  nr_evento, nr_norvo, nr_sospensione, fl_sosp_futura, nr_protocollo, nr_collegio)
  VALUES (3, 1, 'AL', 'IS', 'RS', #6/1/2004#, Null, 3, 1, 1, False, Null, 101);
INSERT INTO status_ragioniere (n, cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_dec_canc,
  nr_evento, nr_norvo, nr_sospensione, fl_sosp_futura, nr_protocollo, nr_collegio)
  VALUES (4, 1, 'AL', 'IS', 'PR', #1/1/2005#, Null, 4, 1, 0, False, Null, 101);
INSERT INTO status_ragioniere (n, cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_dec_canc,
  nr_evento, nr_norvo, nr_sospensione, fl_sosp_futura, nr_protocollo, nr_collegio)
  VALUES (5, 1, 'AL', 'CA', 'TE', #1/1/2005#, Null, 4, 1, 0, False, Null, 101);
INSERT INTO status_ragioniere (n, cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_dec_canc,
  nr_evento, nr_norvo, nr_sospensione, fl_sosp_futura, nr_protocollo, nr_collegio)
  VALUES (6, 2, 'EL', 'IS', 'IS', #1/1/2001#, Null, 1, 1, 0, False, Null, 7);
INSERT INTO status_ragioniere (n, cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_dec_canc,
  nr_evento, nr_norvo, nr_sospensione, fl_sosp_futura, nr_protocollo, nr_collegio)
  VALUES (7, 2, 'AL', 'CA', 'TR', #2/2/2003#, #3/3/2006#, 1, 1, 0, False, Null, 102);
INSERT INTO status_ragioniere (n, cd_matr, cd_evento, cd_tip_evento, cd_mot_evento, dt_evento, dt_dec_canc,
  nr_evento, nr_norvo, nr_sospensione, fl_sosp_futura, nr_protocollo, nr_collegio)
  VALUES (8, 2, 'AL', 'IS', 'SO', #5/5/2005#, #6/6/2005#, 2, 1, 2, True, Null, 102);

CREATE TABLE stato_attuale (cd_matr LONG, nr_norvo SHORT, fl_iscritto_elenco BIT, cd_tip_evento_al TEXT(2),
  cd_mot_evento_al TEXT(2));
INSERT INTO stato_attuale VALUES (1, 1, False, 'IS', 'IS');
INSERT INTO stato_attuale VALUES (2, 1, True, 'IS', 'SO');
INSERT INTO stato_attuale VALUES (2, 2, False, 'CA', 'TE');
INSERT INTO stato_attuale VALUES (3, 1, False, 'IS', 'SO');
INSERT INTO stato_attuale VALUES (3, 1, True, 'IS', 'IS');

CREATE TABLE tb_domande_rag (n LONG, cd_tipo_domanda TEXT(2), cd_mot_evento TEXT(2), dt_dec_canc DATETIME,
  dt_fine_sosp DATETIME, nr_protocollo TEXT(10), dt_protocollo DATETIME, nr_norvo SHORT, nr_collegio LONG,
  fl_iscritto_elenco BIT);
INSERT INTO tb_domande_rag VALUES (1, 'IS', 'SO', #4/1/2004#, Null, 'p1', #1/2/2004#, 1, 101, False);
INSERT INTO tb_domande_rag VALUES (2, 'IS', 'IS', #4/1/2004#, Null, 'P1', #1/2/2004#, 2, 101, True);

CREATE TABLE praticante (cd_matr LONG, nr_sezione LONG, sezione TEXT(1), cd_stato_corr TEXT(2),
  nr_sezione_prof LONG, cd_nr_collegio LONG, dt_inizio_pratica DATETIME, dt_fine_pratica DATETIME,
  dt_iscrizione DATETIME, dt_scadenza_relazione DATETIME, cd_abilitazione LONG, fl_esito_esame BIT,
  fl_compiuto_tirocinio BIT);
INSERT INTO praticante VALUES (1, 0, Null, 'IS', 5, 0, #1/31/2005#, Null, #1/1/2005#, Null, 0, False, False);
INSERT INTO praticante VALUES (2, Null, Null, Null, 0, 101, Null, #12/1/2006#, #2/1/2005#, Null, Null, True,
  False);
INSERT INTO praticante VALUES (3, 0, Null, 'NI', 0, 0, Null, Null, Null, Null, 4, False, False);
INSERT INTO praticante VALUES (0, 0, 'B', 'IS', 0, 0, Null, Null, Null, Null, 0, True, True);

CREATE TABLE status_praticante (cd_prg LONG, cd_matr LONG, nr_sezione LONG, sezione TEXT(1),
  cd_evento TEXT(2), cd_tip_evento TEXT(2), dt_finale DATETIME, dt_delibera DATETIME, dt_evento DATETIME);
INSERT INTO status_praticante VALUES (1, 1, 0, Null, 'PR', 'RE', #2/28/2006#, #3/1/2006#, #1/1/2006#);
INSERT INTO status_praticante VALUES (2, 1, 4, Null, 'PR', 'IS', Null, Null, #1/31/2006#);
INSERT INTO status_praticante VALUES (3, 1, Null, Null, 'PR', 'RE', #8/31/2006#, Null, #1/1/2006#);
INSERT INTO status_praticante VALUES (4, 2, 0, Null, 'PR', 'RE', Null, Null, Null);
INSERT INTO status_praticante VALUES (5, 2, 0, Null, 'PR', 'NI', #1/1/2007#, Null, Null);

CREATE TABLE stato_attuale_prat (cd_matr LONG, nr_sezione LONG, sezione TEXT(1), cd_tip_evento TEXT(2));
INSERT INTO stato_attuale_prat VALUES (1, Null, Null, 'IS');
INSERT INTO stato_attuale_prat VALUES (2, 0, Null, 'NI');

CREATE TABLE tb_domande_prat (nr_collegio LONG, nr_sezione LONG, sezione TEXT(1), st_istruttoria TEXT(2));
INSERT INTO tb_domande_prat VALUES (7, 0, Null, Null);
INSERT INTO tb_domande_prat VALUES (0, 0, Null, Null);
INSERT INTO tb_domande_prat VALUES (8, 3, 'B', 'NI');

CREATE TABLE Status_Prof_Praticante (nr_collegio LONG, nr_sezione LONG, Data_Cambio DATETIME);
INSERT INTO Status_Prof_Praticante VALUES (101, 0, #12/31/2007#);
INSERT INTO Status_Prof_Praticante VALUES (102, 0, #1/1/2008#);
INSERT INTO Status_Prof_Praticante VALUES (103, 0, Null);

CREATE TABLE prot_registrazione (anno SHORT, mese SHORT, id_prot LONG, tipo TEXT(3));
INSERT INTO prot_registrazione VALUES (2006, 0, 1, 'OUT');
INSERT INTO prot_registrazione VALUES (2006, 0, 2, 'OUT');
INSERT INTO prot_registrazione VALUES (2006, 0, 2, 'IN');
INSERT INTO prot_registrazione VALUES (2006, 1, 3, 'OUT');
INSERT INTO prot_registrazione VALUES (2007, 5, 1, 'OUT');

CREATE TABLE prot_reg_contenuti (anno SHORT, mese SHORT, id_prot LONG, tipo TEXT(3));
INSERT INTO prot_reg_contenuti VALUES (2006, 0, 1, 'IN');
INSERT INTO prot_reg_contenuti VALUES (2006, 0, 1, 'IN');
INSERT INTO prot_reg_contenuti VALUES (2006, 0, 2, 'IN');
INSERT INTO prot_reg_contenuti VALUES (2006, 1, 3, 'IN');

CREATE TABLE prot_interno (anno SHORT, mese SHORT);
INSERT INTO prot_interno VALUES (2006, 1);
INSERT INTO prot_interno VALUES (2006, 2);
INSERT INTO prot_interno VALUES (2007, 1);

CREATE TABLE prot_int_contenuti (anno SHORT, mese SHORT);
INSERT INTO prot_int_contenuti VALUES (2006, 1);
INSERT INTO prot_int_contenuti VALUES (2006, 1);

CREATE TABLE prot_sviluppo_liste (anno SHORT, mese SHORT);
INSERT INTO prot_sviluppo_liste VALUES (2007, 1);

CREATE TABLE tb_altri_dati (tipo TEXT(2), cd_base LONG, cd_dettaglio LONG, descr TEXT(30));
INSERT INTO tb_altri_dati VALUES ('DP', 1, 0, 'Albo');
INSERT INTO tb_altri_dati VALUES ('DP', 1, 2, 'tecnico');
INSERT INTO tb_altri_dati VALUES ('XX', 1, 0, 'no');
INSERT INTO tb_altri_dati VALUES ('XX', 1, 2, 'no');

CREATE TABLE altri_dati (cd_matr LONG, tipo TEXT(2), cd_base LONG, cd_dettaglio LONG, ds_note TEXT(30));
INSERT INTO altri_dati VALUES (2, 'DP', 1, 2, 'nota');
INSERT INTO altri_dati VALUES (1, 'DP', 1, 2, Null);
INSERT INTO altri_dati VALUES (1, 'XX', 1, 2, Null);

CREATE TABLE altri_dati2 (cd_matr LONG);
INSERT INTO altri_dati2 VALUES (1);

CREATE TABLE Settori_Rag (cd_matr LONG, Settore TEXT(2), Sezione TEXT(1), DataIscr DATETIME,
  ProgressivoTS LONG);
INSERT INTO Settori_Rag VALUES (2, 'a', 'A', #1/1/2003#, 0);
INSERT INTO Settori_Rag VALUES (1, 'b', 'A', #1/1/2002#, 0);
INSERT INTO Settori_Rag VALUES (1, 'a', 'A', #1/1/2001#, 4);

CREATE TABLE tb_Settori (AppName TEXT(20), Settore TEXT(2), Sezione TEXT(1), Descrizione TEXT(30),
  Titolo TEXT(10));
INSERT INTO tb_Settori VALUES ('ORDCOMMEC', 'a', 'A', 'Civile', 'Ing.');
INSERT INTO tb_Settori VALUES ('ALTRO', 'b', 'A', 'Altro', 'Dr.');

CREATE TABLE titolo_studio_rag (cd_matr LONG, Progressivo LONG);
INSERT INTO titolo_studio_rag VALUES (1, 1);
INSERT INTO titolo_studio_rag VALUES (1, 2);
INSERT INTO titolo_studio_rag VALUES (2, 1);

CREATE TABLE lingue_rag (cd_matr LONG);
INSERT INTO lingue_rag VALUES (1);
INSERT INTO lingue_rag VALUES (2);

CREATE TABLE tb_indirizzo (cd_matr LONG);
INSERT INTO tb_indirizzo VALUES (1);
INSERT INTO tb_indirizzo VALUES (1);

CREATE TABLE altri_recapiti (cd_matr LONG, cd_classe TEXT(1), flg_invio_corr BIT, progressivo_recapito LONG);
INSERT INTO altri_recapiti VALUES (1, 'C', True, 2);
INSERT INTO altri_recapiti VALUES (1, 'C', True, 1);
INSERT INTO altri_recapiti VALUES (1, 'C', False, 0);
INSERT INTO altri_recapiti VALUES (1, 'A', True, 0);

CREATE TABLE status_anzianita (cd_matr LONG, fl_iscritto_elenco BIT, dt_iscrizione DATETIME);
INSERT INTO status_anzianita VALUES (1, False, #1/1/2004#);
INSERT INTO status_anzianita VALUES (1, False, #1/10/2000#);
INSERT INTO status_anzianita VALUES (1, True, #1/1/1990#);

CREATE TABLE tb_notifiche (cd_rep_nome TEXT(20));
INSERT INTO tb_notifiche VALUES ('MOD01.DOC');
INSERT INTO tb_notifiche VALUES ('mod1.doc');
INSERT INTO tb_notifiche VALUES ('mod02.docx');

CREATE TABLE tb_certificati (cd_rep_nome TEXT(20), progressivo SHORT);
INSERT INTO tb_certificati VALUES ('cert1.doc', 1);
INSERT INTO tb_certificati VALUES ('cert2.doc', 40);

CREATE TABLE Simpatizzante (cd_matr LONG, cd_classe TEXT(1), fl_spedizione TEXT(1));
INSERT INTO Simpatizzante VALUES (1, 'S', Null);
INSERT INTO Simpatizzante VALUES (2, 'S', '1');

CREATE TABLE associati (cd_gruppo LONG, fl_spedizione TEXT(1), fl_norvo_unico BIT, cd_norvo_unico LONG,
  note_norvo_unico MEMO, cd_fiscale TEXT(16), nr_sezione LONG);
INSERT INTO associati (cd_gruppo, fl_spedizione, cd_fiscale, nr_sezione) VALUES (1, Null, 'AAA', 10);
INSERT INTO associati (cd_gruppo, fl_spedizione, cd_fiscale, nr_sezione) VALUES (2, '', 'BBB', 0);

CREATE TABLE componenti_associati (cd_gruppo LONG, cd_matr LONG, cd_classe TEXT(1));
INSERT INTO componenti_associati VALUES (1, 1, 'C');
INSERT INTO componenti_associati VALUES (1, 9, 'C');
INSERT INTO componenti_associati VALUES (1, 2, 'S');
INSERT INTO componenti_associati VALUES (1, 8, 'S');
INSERT INTO componenti_associati VALUES (5, 1, 'C');
INSERT INTO componenti_associati VALUES (1, Null, 'C');

CREATE TABLE enti (n LONG, fl_spedizione TEXT(1));
INSERT INTO enti VALUES (1, Null);
INSERT INTO enti VALUES (2, '1');

CREATE TABLE gruppi (n LONG, fl_spedizione TEXT(1));
INSERT INTO gruppi VALUES (1, Null);

CREATE TABLE zone_comuni_preferenze (cd_matr LONG, fl_zona BIT, zona SHORT, comune TEXT(30), prov TEXT(2));

CREATE TABLE Esame (codice_esame LONG);
INSERT INTO Esame VALUES (4);
INSERT INTO Esame VALUES (9);

CREATE TABLE linkEsame (codice_esame LONG);
INSERT INTO linkEsame VALUES (20);
INSERT INTO linkEsame VALUES (21);

CREATE TABLE collegio_provinciale (CodiceCliente TEXT(20), ds_collegio TEXT(80));
INSERT INTO collegio_provinciale VALUES ('ORDCOMMEC', 'Collegio');

CREATE TABLE privacy (aut_res BIT);
INSERT INTO privacy VALUES (False);
INSERT INTO privacy VALUES (True);

CREATE TABLE tmp_morosi (n LONG);
INSERT INTO tmp_morosi VALUES (1);

CREATE TABLE tmp_prat (n LONG);
INSERT INTO tmp_prat VALUES (1);
INSERT INTO tmp_prat VALUES (2);

CREATE TABLE tmp_rag (n LONG);
INSERT INTO tmp_rag VALUES (1);

CREATE TABLE tmp_simp (n LONG);

CREATE TABLE tb_tesserini (cd_classe TEXT(1));
INSERT INTO tb_tesserini VALUES (Null);
INSERT INTO tb_tesserini VALUES (' ');
INSERT INTO tb_tesserini VALUES ('C');

CREATE TABLE tb_tesserini_setup (Classe TEXT(1));
INSERT INTO tb_tesserini_setup VALUES ('');
INSERT INTO tb_tesserini_setup VALUES ('A');

CREATE TABLE motivo_evento (cd_evento TEXT(2), cd_tip_evento TEXT(2), cd_mot_evento TEXT(2),
  ds_mot_evento TEXT(60));
INSERT INTO motivo_evento VALUES ('AL', 'IS', 'TR', 'a');
INSERT INTO motivo_evento VALUES ('EL', 'CA', 'TR', 'b');
INSERT INTO motivo_evento VALUES ('AL', 'IS', 'RE', 'c');
INSERT INTO motivo_evento VALUES ('PR', 'IN', '01', 'd');
INSERT INTO motivo_evento VALUES ('AL', 'CA', 'AL', 'e');

CREATE TABLE FTPSend (IDFTPSend LONG, Server TEXT(30));
INSERT INTO FTPSend VALUES (1, 'uno');
INSERT INTO FTPSend VALUES (2, 'due');

CREATE TABLE Ordine (CodOrdine TEXT(4), Nome TEXT(30));
INSERT INTO Ordine VALUES ('0037', 'Bologna');

CREATE TABLE Config (NtfVers LONG);
INSERT INTO Config VALUES (14);

CREATE TABLE Anagrafica (IdAnagrafica LONG, CodTipoIndirizzoPredefinito TEXT(1), flPraticante BIT,
  flEsterno BIT, flSTP BIT, CodOrdine TEXT(4), CodiceFiscale TEXT(16), NumIscrizione LONG);
INSERT INTO Anagrafica VALUES (1, 'S', False, False, False, '0037', 'DMC', 101);
INSERT INTO Anagrafica VALUES (2, 'L', False, False, True, '0037', 'STP', 5);
INSERT INTO Anagrafica VALUES (3, 'R', False, False, False, '0037', 'DMC', 99);
INSERT INTO Anagrafica VALUES (4, 'R', True, False, False, '0037', 'PRA', 200);

CREATE TABLE Indirizzo (IdAnagrafica LONG, CodTipoIndirizzo TEXT(1), Presso TEXT(9), Indirizzo TEXT(30),
  Frazione TEXT(9), Comune TEXT(30), Provincia TEXT(2), CAP TEXT(5), Tel1 TEXT(9), Tel2 TEXT(9), Cell TEXT(9),
  Fax TEXT(9));
INSERT INTO Indirizzo (IdAnagrafica, CodTipoIndirizzo, Comune) VALUES (1, 'R', 'Carpi');
INSERT INTO Indirizzo (IdAnagrafica, CodTipoIndirizzo, Comune) VALUES (1, 'S', 'Modena');
INSERT INTO Indirizzo (IdAnagrafica, CodTipoIndirizzo, Comune) VALUES (2, 'L', 'Bologna');

CREATE TABLE F24Dettaglio (IdAnagrafica LONG, DataVersamento DATETIME, Anno LONG, CodiceCausale TEXT(4));
INSERT INTO F24Dettaglio VALUES (1, #1/2/2007#, 2006, 'B');
INSERT INTO F24Dettaglio VALUES (1, #1/2/2007#, 2006, 'A');
INSERT INTO F24Dettaglio VALUES (1, Null, 2005, 'A');

CREATE TABLE altri_norvi (norvo LONG, ds_norvo TEXT(30));
INSERT INTO altri_norvi VALUES (7, 'Sette');

CREATE TABLE ElencoOrdini (CodTipoOrdine TEXT(3), Sigla TEXT(2), Ordine TEXT(30));
INSERT INTO ElencoOrdini VALUES ('CDL', 'BO', 'Bologna');
INSERT INTO ElencoOrdini VALUES ('ING', 'BO', 'altro');

CREATE TABLE sicurezza (cd_utente TEXT(10), fl_norvo BYTE, fl_norvo_pratiche BYTE, fl_praticanti BYTE,
  fl_praticanti_pratiche BYTE, fl_praticanti_scadenze BYTE, fl_gruppi BYTE, fl_connessioni BYTE,
  fl_utilita BYTE, fl_quote BYTE, fl_studi_associati BYTE, fl_esterni BYTE, fl_protocollo BYTE,
  fl_etichette BYTE, fl_statistiche BYTE, fl_ordine BYTE, fl_commissioni_edilizie BYTE, fl_sorteggi BYTE,
  fl_parcelle BYTE, fl_export BYTE, fl_delibere BYTE, fl_certificati BYTE, fl_dichiarazioni BYTE,
  fl_disciplinare BYTE);
INSERT INTO sicurezza (cd_utente) VALUES ('SYSADM');
INSERT INTO sicurezza (cd_utente) VALUES ('ALTRO');
