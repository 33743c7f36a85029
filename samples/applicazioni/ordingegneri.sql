-- Ingegneri: abilitazioni alla sicurezza dei cantieri, numero di sezione B, zone di preferenza.
ALTER TABLE ragioniere ADD COLUMN [legge494/96] YESNO;
ALTER TABLE ragioniere ADD COLUMN [fl_legge81/08] YESNO;
ALTER TABLE ragioniere ADD COLUMN Nr_SezioneB LONG;
ALTER TABLE ragioniere ADD COLUMN controllo_torino TEXT(1);
ALTER TABLE ragioniere ADD COLUMN fl_zona1 YESNO;
ALTER TABLE ragioniere ADD COLUMN zona_pref1 LONG DEFAULT 0;
ALTER TABLE ragioniere ADD COLUMN comune_pref1 TEXT(60);
ALTER TABLE ragioniere ADD COLUMN prov_pref1 TEXT(2);
ALTER TABLE ragioniere ADD COLUMN fl_zona2 YESNO;
ALTER TABLE ragioniere ADD COLUMN zona_pref2 LONG DEFAULT 0;
ALTER TABLE ragioniere ADD COLUMN comune_pref2 TEXT(60);
ALTER TABLE ragioniere ADD COLUMN prov_pref2 TEXT(2);
ALTER TABLE ragioniere ADD COLUMN fl_zona3 YESNO;
ALTER TABLE ragioniere ADD COLUMN zona_pref3 LONG DEFAULT 0;
ALTER TABLE ragioniere ADD COLUMN comune_pref3 TEXT(60);
ALTER TABLE ragioniere ADD COLUMN prov_pref3 TEXT(2);

CREATE TABLE zone_comuni_preferenze (
  cd_matr LONG NOT NULL,
  fl_zona YESNO,
  zona LONG DEFAULT 0,
  comune TEXT(60),
  prov TEXT(2));
CREATE INDEX Iscritto ON zone_comuni_preferenze (cd_matr, zona);
ALTER TABLE zone_comuni_preferenze ADD CONSTRAINT ragioniere_zone
  FOREIGN KEY (cd_matr) REFERENCES ragioniere (cd_matr) ON UPDATE CASCADE ON DELETE CASCADE;
