// The main window: the choice of a database, its update and the running summary.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "console/aggiornamento.h"
#include "controls/button.h"
#include "controls/common_dialog.h"
#include "controls/form.h"
#include "controls/list_box.h"
#include "controls/menu_item.h"
#include "controls/text_box.h"
#include "controls/timer.h"
#include "jet/dao/engine.h"
#include "runtime/variant.h"

namespace platform {
class Settings;
}

namespace console {

struct Applicazione;

/// What the window takes from the program that it runs in.
struct Programma {
  const platform::Settings& impostazioni;  // outlives the window
  std::string cartella;                    // directory of the executable, without a closing backslash
  std::string nome = "AggNorvo";           // name of the executable: settings and summary files go by it
  /// Shows the window of the file patch for the patch in a folder, and returns when it has been closed.
  std::function<void(const std::string& cartella)> mostraPatch = [](const std::string&) {};
};

/// The window. It holds the choice and the summary; what it is asked to do with them an Aggiornamento does.
///
/// Settings read: (program name, "DU"): "DEBUG" and "OTHERDB", on when "KEP"; "ANALISIDB", the path of the
/// developers' analysis database, without which the box of the descriptions stays hidden; (application,
/// "DBSECTION"): "dbpath", the path of that application's database.
class frmAggMain : public controls::Form {
 public:
  explicit frmAggMain(Programma programma);
  ~frmAggMain() override;

  // Controls, in the order of the window's definition.
  controls::CommonDialog cmdDlg{"cmdDlg"};
  controls::CheckBox chkAltroDatabase{"chkAltroDatabase", "Altro Database"};
  controls::Button cmdSelezionaDB{"cmdSelezionaDB", "&Seleziona Database..."};
  controls::TextBox txtAltroDB{"txtAltroDB"};
  controls::Button cmdEsci{"cmdEsci", "&Esci"};
  controls::Timer Timer1{"Timer1"};
  controls::CheckBox chkAggiornaDescrizioni{"chkAggiornaDescrizioni", "Aggiorna le Descrizioni"};
  controls::TextBox txtRiepilogo{"txtRiepilogo"};
  controls::Button cmdAggiorna{"cmdAggiorna", "&Aggiorna"};
  controls::ListBox lstDatabase{"lstDatabase"};
  controls::Label lblDatabase{"lblDatabase", "&Percorso Database"};
  controls::MenuItem mnuFile{"mnuFile", "&File"};
  controls::MenuItem mnuFileAggiorna{"mnuFileAggiorna", "&Aggiorna"};
  controls::MenuItem mnuFileSep1{"mnuFileSep1", "-"};
  controls::MenuItem mnuFileEsci{"mnuFileEsci", "&Esci"};

  // State.
  std::string PercorsoAnalisiDB;
  std::string PercorsoDatabase;  // target of the next run
  std::shared_ptr<jet::dao::Workspace> Ws;
  jet::dao::DatabasePtr DbRiferimento;  // open from start-up on
  /// The target; open only during a run.
  jet::dao::DatabasePtr DbDestinazione() const;
  jet::dao::RecordsetPtr RsNorvi;  // open only during start-up
  std::string PercorsoProgramma;
  std::string PercorsoRiferimento;
  std::vector<std::string> ColPercorsi;  // element n - 1 belongs to row n of lstDatabase; row 0 is its prompt
  std::vector<std::string> ColNomi;
  double IdTask = 0;
  std::int32_t TellaroFaxServerPorta = 0;
  std::string TellaroFaxServerIP;
  bool ModoDebug = false;
  bool AggiornamentoEseguito = false;  // a run has reached its normal end; never cleared
  bool PathImpostato = false;
  std::string NomeProgrammaPatch;  // key "Norvo-Prg" of PatchList.txt

  Corsa UltimaCorsa;  // how the last run ended

  // Life of the window.
  void Form_Initialize();  // called by the constructor
  void Form_Load();
  void Form_Unload();
  /// For a host that keeps the reference database elsewhere: sets the folder of the program, hides mnuFile.
  /// Runs then skip the guard of the marker file.
  void Path(const std::string& cartella);

  // Choice of the database.
  /// The path if a file is there, otherwise empty.
  std::string Check_Percorso(const std::string& percorso) const;
  std::string Check_Percorso1(const std::string& percorso) const;
  void lstDatabase_Click();
  void lstDatabase_DblClick();
  void chkAltroDatabase_Click();
  void cmdSelezionaDB_Click();
  void txtAltroDB_OLEDragDrop(const controls::DropData& dati);
  void cmdAggiorna_Click();
  void mnuFileAggiorna_Click();
  /// Closes the window; after an update that ended normally, the window of the file patch comes first. During
  /// a run all this waits for its end.
  void cmdEsci_Click();
  void mnuFileEsci_Click();
  void Timer1_Timer();

  // The run. What changes the target does nothing outside of one.
  /// Updates the chosen database from its backup to its compaction; UltimaCorsa tells how it ended. Does
  /// nothing while a run lasts: events are let through during it, and a second click must not reach a
  /// half-updated file.
  void EseguiAggiornamento();
  /// What the next run is to update; sets PercorsoDatabase.
  Scelta LeggiDatabaseScelto();
  void ChiediApplicazione(std::string& nome);
  /// Sets `annulla` if the database is open elsewhere and the operator gave up.
  void VerificaDatabaseChiuso(bool& annulla);
  void WaitFor(int secondi);
  void EliminaComuniDuplicati(bool& esito);
  void RinominaCampiLunghi(const std::string& tabella, bool& esito);
  void ContaRecords(const jet::dao::DatabasePtr& db, const std::string& tabella, std::int32_t& conteggio);
  void ControllaRecords(const jet::dao::DatabasePtr& db, const std::string& tabella, std::int32_t attesi,
                        bool& uguale);

  // The summary.
  void ScriviRiepilogo(std::string& testo, const bool& aCapo);
  void SalvaRiepilogo(const controls::TextBox& casella, bool& esito);
  static std::string EstraiCartella(const runtime::Variant& percorso);
  static std::string EstraiNomeFile(const runtime::Variant& percorso);

 private:
  void definisciControlli();
  void collegaEventi();
  std::string impostazione(const std::string& chiave) const;  // section "DU" of the program
  void aggiungiApplicazione(const Applicazione& trovata);
  void abilitaAggiorna(bool abilita);
  void scegliDatabase(const std::string& percorso);
  schema::Ambiente ambiente();
  void congedo();  // what the operator is told or shown on leaving

  Programma programma_;
  std::unique_ptr<Aggiornamento> corsa_;  // the run that is under way
  bool uscitaRichiesta_ = false;          // during it
};

}  // namespace console
