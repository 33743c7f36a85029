#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "controls/button.h"
#include "controls/form.h"
#include "controls/text_box.h"
#include "patcher/patch_list.h"
#include "platform/paths.h"

namespace runtime {
class Error;
}

namespace patcher {

/// The window that copies the files of a patch to where the suite's programs live, as PatchList.txt in the
/// patch's folder says. Reads common::Impostazioni and writes error.log into common::DirProgramma.
class frmPatch : public controls::Form {
 public:
  static constexpr std::int32_t MaxRighe = 300;

  frmPatch();
  ~frmPatch() override;

  // Controls, in the order of the window's definition.
  controls::TextBox txt{"txt"};  // the running report
  controls::Button cmd{"cmd", "Aggiorna"};
  controls::Button cmdEsci{"cmdEsci", "ESCI"};
  controls::Label lblTop{"lblTop", ""};

  // The list, and what its symbolic directories stand for: each ends in a backslash, or is empty.
  bool ElencoLetto = false;  // to its end
  std::int32_t NumeroRighe = 0;
  std::array<Riga, MaxRighe + 1> RigaPatch;  // used from 1
  std::string DirNorvoDB;
  std::string DirNorvoStampe;
  std::string DirNorvoEXE;
  std::string DirNorvoEXEDB;
  std::string DirTellaroFaxExe;
  std::string DirWinSys;
  std::string DirWindowsPatch;

  // The run.
  bool ArrestoRichiesto = false;  // seen between two rows
  bool SenzaOperatore = false;    // nobody is there to end a wait
  std::int32_t FileAggiornati = 0;
  std::int32_t FileNonAggiornati = 0;
  std::int32_t FileSostituiti = 0;
  std::int32_t ErroriPatch = 0;
  std::string PercorsoEseguibile = platform::executablePath();  // the program that is running

  /// Folder of the list and of the source files, without a closing backslash; set before the window loads.
  void Path(const std::string& cartella);

  void Form_Load();
  /// Reads the list. An error, also a row too many, is reported and ends the program.
  void GetKeys();
  /// Looks the directories up and gives the window the texts of the list. An error is reported and leaves the
  /// rest as it is.
  void GetPaths();

  /// Runs the list.
  void cmd_Click();
  /// During a run asks it to stop; at rest closes the window.
  void cmdEsci_Click();
  /// Carries out the rows in their order, with a report; an error other than a failed copy is reported and
  /// ends the run.
  void StartCopy();
  /// Adds to the report.
  void ScriviTesto(const std::string& testo);
  /// CopiaFile, over again for 15 seconds until it succeeds, with events in between. A wait that midnight
  /// falls into lasts until it does, unless there is no operator.
  void CopiaConAttesa(const std::string& sorgente, const std::string& destinazione, bool& riuscito);
  /// Copies a file with its date over another. The running program, through whatever links, is renamed
  /// first, to its name with date and time behind it, since it can't be overwritten. Any error is false.
  void CopiaFile(const std::string& sorgente, const std::string& destinazione, bool& riuscito);

 private:
  /// The files of a row.
  struct Passo {
    std::string nome;
    std::string sorgente;
    std::string cartella;
    std::string destinazione;
  };
  struct Alias;
  struct Comando;

  const std::string* cartellaDi(const std::string& alias) const;
  void trovaCartelle(const std::string& applicazione);
  void aggiorna(const Passo& passo);     // command AGG
  void sostituisci(const Passo& passo);  // command SOST
  void registra(const Passo& passo);     // command RegS
  void copia(const Passo& passo, std::int32_t& riusciti);
  void annuncia(const char* verbo, const Passo& passo);
  void scriviTotali(std::int32_t riga);

  std::string path_;
};

}  // namespace patcher
