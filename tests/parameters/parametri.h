#pragma once

#include <optional>
#include <string>

#include "jet/dao/engine.h"
#include "parameters/clsKepGenerali.h"
#include "support/scripted_desktop.h"
#include "support/temp_folder.h"

namespace parameters::test {

/// A database with an empty table of parameters, and the object that reads it.
class Parametri {
 public:
  explicit Parametri(
      const std::string& tabella =
          "CREATE TABLE KepGenerali (Nome TEXT(50), Valore TEXT(50), [Note] TEXT(250), Dati MEMO)")
      : db(jet::dao::DBEngine::Workspaces(0)->CreateDatabase(folder_.path("a.mdb"))) {
    db->Execute(tabella);
    kep.Db(db);
  }
  ~Parametri() {
    kep.Class_Terminate();
    db->Close();
  }

  void metti(const std::string& nome, const runtime::Variant& valore, const runtime::Variant& note = "nota",
             const runtime::Variant& dati = "dati") {
    const auto righe = db->OpenRecordset("KepGenerali");
    righe->AddNew();
    righe->Fields("Nome").setValue(nome);
    righe->Fields("Valore").setValue(valore);
    righe->Fields("Note").setValue(note);
    righe->Fields("Dati").setValue(dati);
    righe->Update();
    righe->Close();
  }
  /// "valore|note|dati" of the rows of this key, "Null" for a Null; more rows stand behind each other.
  std::string riga(const std::string& nome) {
    std::string testo;
    const auto righe = db->OpenRecordset("SELECT * FROM KepGenerali WHERE Nome = '" + nome + "'");
    const auto campo = [&](const char* quale) {
      const auto valore = righe->value(quale);
      return valore.isNull() ? std::string("Null") : valore.toText();
    };
    for (; !righe->atEnd(); righe->MoveNext())
      testo += (testo.empty() ? "" : "; ") + campo("Valore") + "|" + campo("Note") + "|" + campo("Dati");
    return testo;
  }

 private:
  support::TempFolder folder_;
  support::ScriptedDesktop ownDesktop_;
  controls::DesktopScope scope_{ownDesktop_};

 public:
  support::ScriptedDesktop& desktop = ownDesktop_;
  jet::dao::DatabasePtr db;
  clsKepGenerali kep;
};

}  // namespace parameters::test
