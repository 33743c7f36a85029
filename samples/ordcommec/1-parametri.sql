-- Parametri dell'installazione: un nome, un valore, due testi liberi.
CREATE TABLE KepGenerali (
  Nome TEXT(50) CONSTRAINT PrimaryKey PRIMARY KEY,
  Valore TEXT(255),
  [Note] MEMO,
  Dati MEMO);

INSERT INTO KepGenerali VALUES ('AppName', 'ordcommec', 'Applicazione a cui appartiene il database', NULL);
INSERT INTO KepGenerali VALUES ('DBVersione', '0009', 'Versione dei dati', NULL);
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
INSERT INTO KepGenerali VALUES ('NorvoUnico', '0', 'Collegamento con l''albo nazionale', NULL);
INSERT INTO KepGenerali VALUES ('UltimoBackup', NULL, '15/03/2006', 'Copia su CD n. 41, armadio della segreteria');
