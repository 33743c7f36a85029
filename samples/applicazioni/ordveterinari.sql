-- Veterinari: strutture in cui esercitano.
ALTER TABLE ragioniere ADD COLUMN ds_struttura TEXT(80);
