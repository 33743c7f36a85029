-- Dottori commercialisti: revisori.
ALTER TABLE ragioniere ADD COLUMN ds_registro_revisori TEXT(60);
