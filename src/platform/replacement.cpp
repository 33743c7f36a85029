#include "platform/files.h"
#include "platform/paths.h"

namespace platform {

Replacement::Replacement(std::string path, const std::string& model)
    : path_(followLinks(path)), temporary_(path_ + ".tmp"), file_(openFile(temporary_, OpenMode::Create)) {
  if (!model.empty()) file_.grantLike(model);
  file_.takePermissionsOf(path_);
}

Replacement::~Replacement() {
  if (renamed_ || !file_) return;
  try {
    removeFile(temporary_);  // while it is still locked, so that no other process has taken up the name
  } catch (const runtime::Error&) {
    // An unpublished file that stays behind harms nobody.
  }
}

File Replacement::publish(std::optional<LockMode> lock) {
  file_.flush();
  if (lock && !file_.tryLock(*lock)) throw DiskError(DiskFault::Sharing, temporary_);
  file_.beforeReplacement();
  replaceFile(temporary_, path_);
  renamed_ = true;  // also where the file can't be taken up again under its new name
  file_.afterReplacement(path_);
  flushFolder(containingFolder(path_));
  return std::move(file_);
}

}  // namespace platform
