// The texts of the questions, and how the answers are compared.
#include "schema/catalogo.h"

#include <array>

#include "common/text.h"

namespace schema {
namespace {

/// In the order of Domanda. The first parameter is the application, the others are the names asked for.
constexpr std::array Testi = {
    "PARAMETERS parNorvo TEXT; SELECT DISTINCT Tabella FROM CampiTabella WHERE Norvo = 'Tutti' OR "
    "Norvo=parNorvo",
    "PARAMETERS parNorvo TEXT, parTabella TEXT; SELECT * FROM CampiTabella WHERE (Norvo='Tutti' OR "
    "Norvo=parNorvo) AND Tabella=parTabella",
    "PARAMETERS parNorvo TEXT; SELECT DISTINCT Tabella FROM CampiDaEliminare WHERE Norvo = 'Tutti' OR "
    "Norvo=parNorvo",
    "PARAMETERS parNorvo TEXT, parTabella TEXT; SELECT * FROM CampiDaEliminare WHERE (Norvo='Tutti' OR "
    "Norvo=parNorvo) AND Tabella=parTabella",
    "PARAMETERS parNorvo TEXT; SELECT * FROM Indici WHERE Norvo = 'Tutti' OR Norvo=parNorvo",
    "PARAMETERS parNorvo TEXT, parTabella TEXT, parIndice TEXT; SELECT * FROM CampiIndice WHERE (Norvo = "
    "'Tutti' OR Norvo=parNorvo) AND Tabella=parTabella AND Indice=parIndice",
    "PARAMETERS parNorvo TEXT; SELECT * FROM Relazioni WHERE Norvo = 'Tutti' OR Norvo=parNorvo",
    "PARAMETERS parNorvo TEXT, parRelazione TEXT; SELECT * FROM CampiRelazione WHERE (Norvo = 'Tutti' OR "
    "Norvo=parNorvo) AND Relazione=parRelazione",
};

}  // namespace

Interrogazione::Interrogazione(const Ambiente& ambiente, Domanda domanda)
    : query_(ambiente.riferimento->CreateQueryDef("", Testi[static_cast<std::size_t>(domanda)])) {
  query_->Parameters(0).setValue(ambiente.applicazione);
}

Interrogazione::~Interrogazione() {
  query_->Close();
}

jet::dao::RecordsetPtr Interrogazione::righe(std::initializer_list<std::string> nomi) {
  std::size_t posto = 0;
  for (const std::string& nome : nomi) query_->Parameters(++posto).setValue(nome);
  return query_->OpenRecordset(jet::dao::dbOpenSnapshot);
}

jet::dao::RecordsetPtr Interrogazione::righeContate(std::initializer_list<std::string> nomi) {
  auto trovate = righe(nomi);
  trovate->MoveLast();
  trovate->MoveFirst();
  return trovate;
}

bool diverso(const runtime::Variant& catalogo, const std::string& trovato) {
  return !catalogo.isNull() && !common::StessoTesto(catalogo.toText(), trovato);
}

bool diverso(const runtime::Variant& catalogo, std::int32_t trovato) {
  return !catalogo.isNull() && catalogo.toLong() != trovato;
}

bool diverso(const runtime::Variant& catalogo, bool trovato) {
  return !catalogo.isNull() && catalogo.toBoolean() != trovato;
}

}  // namespace schema
