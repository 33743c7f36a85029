-- Geologi: regione di competenza.
ALTER TABLE ragioniere ADD COLUMN cd_regione TEXT(3);
