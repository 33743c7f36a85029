-- Infermieri: profilo e crediti formativi.
ALTER TABLE ragioniere ADD COLUMN cd_profilo TEXT(2) DEFAULT 'IP';
ALTER TABLE ragioniere ADD COLUMN nr_crediti SHORT DEFAULT 0;
