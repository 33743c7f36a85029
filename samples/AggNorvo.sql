-- Le applicazioni che la suite conosce; il percorso del database di ognuna sta nelle impostazioni.
CREATE TABLE Norvi (norvo TEXT(50) CONSTRAINT PrimaryKey PRIMARY KEY);

INSERT INTO Norvi VALUES ('collgeometri');
INSERT INTO Norvi VALUES ('collperind');
INSERT INTO Norvi VALUES ('ordarchitetti');
INSERT INTO Norvi VALUES ('ordcommec');
INSERT INTO Norvi VALUES ('ordconslav');
INSERT INTO Norvi VALUES ('orddottcomm');
INSERT INTO Norvi VALUES ('ordgeologi');
INSERT INTO Norvi VALUES ('ordingegneri');
INSERT INTO Norvi VALUES ('ordpsicologi');
INSERT INTO Norvi VALUES ('ordmedici');
INSERT INTO Norvi VALUES ('collipasvi');
INSERT INTO Norvi VALUES ('ordgiornalisti');
INSERT INTO Norvi VALUES ('ordveterinari');
INSERT INTO Norvi VALUES ('PROTOCOLLO');
INSERT INTO Norvi VALUES ('TELLAROPEC');
