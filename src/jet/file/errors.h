#pragma once

#include <string>

#include "platform/disk.h"
#include "runtime/error.h"

/// Numbered errors of the database engine, as DAO publishes them.
namespace jet::file {

enum JetErrorNumber : int {
  InvalidArgument = 3001,
  DuplicateKey = 3022,
  DatabaseNotFound = 3024,
  NotEnoughSpace = 3026,
  ReadOnlyDatabase = 3027,
  WrongPassword = 3031,
  OldFormat = 3041,
  DiskFailure = 3043,
  InvalidPath = 3044,
  RecordTooLarge = 3047,
  CannotOpen = 3051,
  NullInIndex = 3058,
  ChangedElsewhere = 3197,
  DatabaseExists = 3204,
  UnrecognizedFormat = 3343,  // not a database, or a damaged one
  OpenedElsewhere = 3356,
};

runtime::Error jetError(JetErrorNumber number, const std::string& description);

/// Error 3343 for damage: `what` says where and what.
runtime::Error damagedFile(const std::string& what);

/// The engine's error for a failed disk call; names the path of that call.
runtime::Error fromDisk(const platform::DiskError& error);

/// Error 3356 for a file that another process holds; names the holder where the system tells.
runtime::Error heldElsewhere(const std::string& path);

}  // namespace jet::file
