-- Psicologi: annotazione di psicoterapeuta.
ALTER TABLE ragioniere ADD COLUMN fl_psicoterapeuta YESNO;
ALTER TABLE ragioniere ADD COLUMN dt_psicoterapeuta DATETIME;
