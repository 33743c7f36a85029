-- Comuni con il loro periodo di validità: DataFine è la fine del periodo, 31/12/9999 per quello in corso.
CREATE TABLE italia_comuni (
  ISTAT TEXT(6),
  Comune TEXT(60),
  PROVINCIA TEXT(2),
  CAP TEXT(5),
  DataFine DATETIME,
  CodiceCatastale TEXT(4),
  Regione TEXT(30));
CREATE INDEX ISTAT ON italia_comuni (ISTAT);
CREATE INDEX Comune ON italia_comuni (Comune, PROVINCIA);
