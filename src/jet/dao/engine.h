#pragma once

#include <memory>
#include <string>

#include "jet/dao/database.h"

namespace jet::dao {

/// A session: its databases and the transaction over them.
class Workspace {
 public:
  Workspace();
  /// Lets every file go; what Close or CommitTrans has not saved is lost.
  ~Workspace();
  Workspace(const Workspace&) = delete;
  Workspace& operator=(const Workspace&) = delete;

  /// Errors as jet::file::PageFile; `exclusive` keeps every other opener out, also in other processes.
  DatabasePtr OpenDatabase(const std::string& path, bool exclusive = false, bool readOnly = false);
  /// A database to try changes on, that is never to be saved: its file is opened for reading alone, so that
  /// one that can't be written will do.
  DatabasePtr OpenForTrial(const std::string& path);
  /// A new, empty Jet 4 database, open exclusively. Error 3204 if the file is there.
  DatabasePtr CreateDatabase(const std::string& path);

  /// Transactions nest up to five levels (error 3003 beyond); they span all databases of the workspace.
  void BeginTrans();
  /// The outermost one saves every database, the closed ones too. An error leaves the transaction open.
  /// Error 3034 without BeginTrans.
  void CommitTrans(int options = 0);
  /// Takes back everything since BeginTrans. Error 3034 without it.
  void Rollback();

  /// Closes every database; an open transaction is rolled back.
  void Close();

 private:
  struct State;
  std::shared_ptr<State> state_;
};

/// The engine's entry.
class DBEngine {
 public:
  /// The default workspace (index 0, the only one).
  static std::shared_ptr<Workspace> Workspaces(int index);
  static DatabasePtr OpenDatabase(const std::string& path, bool exclusive = false, bool readOnly = false);
  /// Writes a compact copy of `source` to `destination`. Error 3204 if the destination is there, 3356 while
  /// the source is open anywhere; a failure leaves no destination.
  static void CompactDatabase(const std::string& source, const std::string& destination);
};

}  // namespace jet::dao
