-- Parametri dell'installazione: un nome, un valore, due testi liberi.
CREATE TABLE KepGenerali (
  Nome TEXT(40) CONSTRAINT PrimaryKey PRIMARY KEY,
  Valore TEXT(120),
  [Note] MEMO,
  Dati MEMO);

INSERT INTO KepGenerali VALUES ('AppName', 'ordcommec', 'Applicazione a cui appartiene il database', NULL);
INSERT INTO KepGenerali VALUES ('DBVersione', '0005', 'Versione dei dati', NULL);
INSERT INTO KepGenerali VALUES ('DataWeb', '1', 'Pubblicazione dell''albo sul sito: 0 no, 1 sì', NULL);
INSERT INTO KepGenerali VALUES ('Denominazione', 'Ordine dei Commercialisti di Forlì', 'Intestazione delle stampe', 'Via dell''Appennino, 1 - 47100 Forlì (FC)');
INSERT INTO KepGenerali VALUES ('CognomiNomiMaiuscoli', '0', 'Cognomi e nomi in maiuscolo', NULL);
INSERT INTO KepGenerali VALUES ('IndirizziMaiuscoli', '0', 'Indirizzi in maiuscolo', NULL);
INSERT INTO KepGenerali VALUES ('EtichetteEgrGent', '1', 'Egregio e Gentile sulle etichette', NULL);
INSERT INTO KepGenerali VALUES ('EDFontSize', '9', 'Carattere delle etichette, in punti', NULL);
INSERT INTO KepGenerali VALUES ('EDLarghezzaModulo', '33cm', 'Larghezza del modulo continuo', NULL);
INSERT INTO KepGenerali VALUES ('CtrlCapComuneProv', '2', 'Controllo di CAP, comune e provincia: 0 no, 1 avviso, 2 blocco', NULL);
INSERT INTO KepGenerali VALUES ('AvvisoScadenzaPraticantiGG', '30', 'Giorni di preavviso per la scadenza della pratica', NULL);
INSERT INTO KepGenerali VALUES ('ProtocolloInformatico', '1', '01/01/2004', NULL);
INSERT INTO KepGenerali VALUES ('ProtocolloPercorsoI', '.', '\\SERVER\norvo\protocollo\', NULL);
INSERT INTO KepGenerali VALUES ('SospensioniPerDataDecorrenza', '0', 'Sospensioni secondo la data di decorrenza', NULL);
INSERT INTO KepGenerali VALUES ('ScadRelazPratAnnuale', '0', 'Relazione dei praticanti ogni anno invece che ogni sei mesi', NULL);
INSERT INTO KepGenerali VALUES ('ADD_altri_norvi', '1', 'Elenco degli altri albi aggiornato con la versione: 0 no', NULL);
INSERT INTO KepGenerali VALUES ('NorvoUnico', '0', 'Collegamento con l''albo nazionale', NULL);
INSERT INTO KepGenerali VALUES ('UltimoBackup', NULL, '15/03/2006', 'Copia su CD n. 41, armadio della segreteria');

CREATE TABLE collegio_provinciale (
  cd_collegio LONG CONSTRAINT PrimaryKey PRIMARY KEY,
  ds_collegio TEXT(80) NOT NULL,
  ds_indirizzo TEXT(80),
  cd_cap TEXT(5),
  ds_comune TEXT(60),
  cd_sg_prov TEXT(2),
  reg_collegio TEXT(30),
  nr_telefono TEXT(20),
  nr_fax TEXT(20),
  ds_internet TEXT(80));

INSERT INTO collegio_provinciale VALUES (1, 'Ordine dei Commercialisti di Forlì', 'Via dell''Appennino, 1', '47100', 'Forlì', 'FC', 'Emilia-Romagna', '0543 000001', '0543 000002', 'segreteria@ordine.example');

-- Diritti degli utenti. I moduli più recenti non hanno ancora la loro colonna.
CREATE TABLE sicurezza (
  cd_utente TEXT(20) CONSTRAINT PrimaryKey PRIMARY KEY,
  ds_utente TEXT(60),
  fl_norvo SHORT DEFAULT 0,
  fl_norvo_pratiche SHORT DEFAULT 0,
  fl_praticanti SHORT DEFAULT 0,
  fl_praticanti_pratiche SHORT DEFAULT 0,
  fl_praticanti_scadenze SHORT DEFAULT 0,
  fl_gruppi SHORT DEFAULT 0,
  fl_connessioni SHORT DEFAULT 0,
  fl_utilita SHORT DEFAULT 0,
  fl_quote SHORT DEFAULT 0,
  fl_studi_associati SHORT DEFAULT 0,
  fl_esterni SHORT DEFAULT 0,
  fl_protocollo SHORT DEFAULT 0,
  fl_etichette SHORT DEFAULT 0,
  fl_statistiche SHORT DEFAULT 0,
  fl_ordine SHORT DEFAULT 0,
  fl_commissioni_edilizie SHORT DEFAULT 0,
  fl_sorteggi SHORT DEFAULT 0,
  fl_parcelle SHORT DEFAULT 0);

INSERT INTO sicurezza VALUES ('SYSADM', 'Amministratore', 15, 15, 15, 15, 15, 15, 15, 15, 15, 15, 0, 0, 0, 0, 0, 0, 0, 0);
INSERT INTO sicurezza VALUES ('GIULIA', 'Segreteria', 7, 7, 7, 7, 7, 7, 7, 7, 7, 3, 3, 3, 3, 3, 3, 3, 3, 3);
INSERT INTO sicurezza VALUES ('TIROC', 'Tirocinante', 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
