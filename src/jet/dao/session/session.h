#pragma once

#include <memory>
#include <string>

#include "jet/dao/query/statement_runner.h"
#include "jet/file/page/page_file.h"
#include "jet/image/image.h"

namespace jet::dao {

/// An open file with its image. Inside a transaction it outlives the Database that opened it.
class Session {
 public:
  explicit Session(std::unique_ptr<file::PageFile> source);

  const std::string& path() const { return path_; }
  bool readOnly() const { return readOnly_; }
  /// Error 3420 once released.
  image::Image& image();
  StatementRunner& runner();

  /// Writes the file anew if anything changed and goes on over it. On error the old file is as it was, or,
  /// where only the flush of its folder failed, the new one is there already. Error 3356 while another opener
  /// shares the file, 3197 if it was changed or replaced meanwhile, 3051 if its rights can't be kept or it
  /// has hard links.
  void save();
  /// Lets go of the file; what is not saved is lost.
  void release();
  bool released() const { return !image_; }

  bool closed = false;  // its Database is closed, and a transaction keeps it

 private:
  /// Puts the whole new file in place of the old one; gives it open and locked as the old one was.
  platform::File publish();

  std::string path_;
  file::Sharing sharing_;
  bool readOnly_;
  std::unique_ptr<image::Image> image_;
  std::unique_ptr<StatementRunner> runner_;
};

}  // namespace jet::dao
