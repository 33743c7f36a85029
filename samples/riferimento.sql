-- Ciò che del riferimento nessun modello dice.

-- Campi che le versioni precedenti avevano.
INSERT INTO CampiDaEliminare VALUES ('Tutti', 'ragioniere', 'ip_quota');
INSERT INTO CampiDaEliminare VALUES ('Tutti', 'ragioniere', 'cd_zona');
INSERT INTO CampiDaEliminare VALUES ('Tutti', 'praticante', 'ds_scuola');
INSERT INTO CampiDaEliminare VALUES ('Tutti', 'quote_dovute', 'cd_causale');
INSERT INTO CampiDaEliminare VALUES ('Tutti', 'prot_registrazione', 'nr_fascicolo');
INSERT INTO CampiDaEliminare VALUES ('Tutti', 'DataWebAnagrafica', 'ds_fax');
INSERT INTO CampiDaEliminare VALUES ('ordarchitetti', 'ragioniere', 'ds_cognome_cerca');

-- Campi nuovi che anche le righe già presenti devono avere. Il predefinito di un testo porta le virgolette, che
-- finirebbero nelle righe: qui ci sono solo numeri.
UPDATE CampiTabella SET UpdateDefaultValue = True
  WHERE Tabella = 'ragioniere' AND Campo IN ('nr_elenco', 'cd_domanda', 'cd_domanda_elenco');
UPDATE CampiTabella SET UpdateDefaultValue = True
  WHERE Tabella = 'praticante' AND Campo IN ('cd_nr_norvo', 'cd_matr_esterno', 'nr_esterno', 'nr_sezione_prof');
UPDATE CampiTabella SET UpdateDefaultValue = True
  WHERE Tabella IN ('status_praticante', 'stato_attuale_prat', 'tb_domande_prat', 'Status_Prof_Praticante')
    AND Campo IN ('nr_norvo', 'nr_esterno', 'nr_sezione');
UPDATE CampiTabella SET UpdateDefaultValue = True WHERE Tabella = 'Settori_Rag' AND Campo = 'ProgressivoTS';
UPDATE CampiTabella SET UpdateDefaultValue = True WHERE Tabella = 'status_ragioniere' AND Campo = 'nr_sospensione';
