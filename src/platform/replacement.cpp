// A file written beside another and put in its place, or under a name that nobody has.
#include <utility>

#include "platform/files.h"
#include "platform/paths.h"

namespace platform {

Replacement::Replacement(std::string path, const std::string& model, Name name)
    : path_(name == Name::New ? std::move(path) : followLinks(path)),
      replaces_(name == Name::NewOrTaken && inspectFile(path_).has_value()),
      temporary_(newNameBeside(path_)),
      file_(replaces_       ? createFile(temporary_, NewFile::InPlaceOf, path_)
            : model.empty() ? createFile(temporary_)
                            : createFile(temporary_, NewFile::Like, model)) {}

Replacement::~Replacement() {
  if (renamed_ || !file_) return;
  try {
    removeFile(temporary_);
  } catch (const runtime::Error&) {
    // An unpublished file that stays behind harms nobody.
  }
}

File Replacement::publish(std::optional<LockMode> lock) {
  file_.flush();
  if (lock && !file_.tryLock(*lock)) throw DiskError(DiskFault::Sharing, temporary_);
  file_.beforeReplacement();
  if (replaces_)
    replaceFile(temporary_, path_);
  else
    renameFile(temporary_, path_);
  renamed_ = true;  // also where the file can't be taken up again under its new name
  file_.afterReplacement(path_);
  flushFolder(containingFolder(path_));
  return std::move(file_);
}

}  // namespace platform
