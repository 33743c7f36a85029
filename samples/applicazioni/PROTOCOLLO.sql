-- Il protocollo come applicazione a sé: i suoi uffici.
CREATE TABLE prot_uffici (
  cd_ufficio LONG CONSTRAINT PrimaryKey PRIMARY KEY,
  ds_ufficio TEXT(60) NOT NULL,
  fl_attivo YESNO DEFAULT True);
