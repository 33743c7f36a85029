-- Parametri dell'installazione: un nome, un valore, due testi liberi.
CREATE TABLE KepGenerali (
  Nome TEXT(50) CONSTRAINT PrimaryKey PRIMARY KEY,
  Valore TEXT(255),
  [Note] MEMO,
  Dati MEMO);

-- L'ordine o il collegio a cui l'installazione appartiene.
CREATE TABLE collegio_provinciale (
  cd_collegio LONG CONSTRAINT PrimaryKey PRIMARY KEY,
  ds_collegio TEXT(120) NOT NULL,
  ds_indirizzo TEXT(80),
  cd_cap TEXT(5),
  ds_comune TEXT(60),
  cd_sg_prov TEXT(2),
  reg_collegio TEXT(30),
  nr_telefono TEXT(20),
  nr_fax TEXT(20),
  ds_internet TEXT(80),
  ds_legalmail TEXT(80),
  CodiceCliente TEXT(10));

-- Dove la suite manda i suoi file; la riga 1 è quella in uso.
CREATE TABLE FTPSend (
  IDFTPSend LONG CONSTRAINT PrimaryKey PRIMARY KEY,
  RemoteHost TEXT(100),
  RemotePort TEXT(10),
  DestPath TEXT(100),
  URL TEXT(150),
  Proxy TEXT(100),
  UserName TEXT(50),
  [Password] TEXT(50),
  AccessType TEXT(5));

-- Diritti degli utenti, un modulo per colonna: la somma di 1 vedere, 2 inserire, 4 modificare, 8 cancellare.
CREATE TABLE sicurezza (
  cd_utente TEXT(20) CONSTRAINT PrimaryKey PRIMARY KEY,
  ds_utente TEXT(60),
  fl_norvo SHORT DEFAULT 0,
  fl_norvo_pratiche SHORT DEFAULT 0,
  fl_praticanti SHORT DEFAULT 0,
  fl_praticanti_pratiche SHORT DEFAULT 0,
  fl_praticanti_scadenze SHORT DEFAULT 0,
  fl_gruppi SHORT DEFAULT 0,
  fl_connessioni SHORT DEFAULT 0,
  fl_utilita SHORT DEFAULT 0,
  fl_quote SHORT DEFAULT 0,
  fl_studi_associati SHORT DEFAULT 0,
  fl_esterni SHORT DEFAULT 0,
  fl_protocollo SHORT DEFAULT 0,
  fl_etichette SHORT DEFAULT 0,
  fl_statistiche SHORT DEFAULT 0,
  fl_ordine SHORT DEFAULT 0,
  fl_commissioni_edilizie SHORT DEFAULT 0,
  fl_sorteggi SHORT DEFAULT 0,
  fl_parcelle SHORT DEFAULT 0,
  fl_export SHORT DEFAULT 0,
  fl_delibere SHORT DEFAULT 0,
  fl_certificati SHORT DEFAULT 0,
  fl_dichiarazioni SHORT DEFAULT 0,
  fl_disciplinare SHORT DEFAULT 0);
