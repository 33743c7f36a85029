-- Giornalisti: due sezioni insieme, categoria.
ALTER TABLE ragioniere ADD COLUMN SetBis TEXT(5);
ALTER TABLE ragioniere ADD COLUMN nr_sezioneBis LONG;
ALTER TABLE ragioniere ADD COLUMN cd_categoria TEXT(5);
ALTER TABLE ragioniere ADD COLUMN ds_testata TEXT(80);
