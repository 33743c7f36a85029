#include "jet/dao/session/session.h"

#include "jet/file/errors.h"
#include "platform/files.h"

namespace jet::dao {

Session::Session(std::unique_ptr<file::PageFile> source)
    : path_(source->path()), sharing_(source->sharing()), readOnly_(source->readOnly()) {
  image_ = std::make_unique<image::Image>(std::move(source));
  runner_ = std::make_unique<StatementRunner>(*image_);
}

image::Image& Session::image() {
  if (!image_) throw errorOf(ObjectInvalid, source::Database, "il database è chiuso");
  return *image_;
}

StatementRunner& Session::runner() {
  image();
  return *runner_;
}

void Session::save() {
  if (!image().changed()) return;
  try {
    image_->rebase(std::make_unique<file::PageFile>(publish(), sharing_, readOnly_));
  } catch (const platform::DiskError& error) {
    throw file::fromDisk(error);
  }
}

platform::File Session::publish() {
  const bool shared = sharing_ == file::Sharing::Shared;
  file::PageFile& old = image_->source();
  if (shared && !old.file().tryLock(platform::LockMode::Exclusive)) throw file::heldElsewhere(path_);
  old.requireReplaceable();
  platform::Replacement replacement(path_);
  image_->write(replacement.file());
  // A program that knows nothing of our lock may have written while the pages were carried over; once more
  // when the slow part is done.
  replacement.file().flush();
  old.requireReplaceable();
  auto written = replacement.publish(platform::LockMode::Exclusive);
  if (shared && !written.tryLock(platform::LockMode::Shared)) throw file::heldElsewhere(path_);
  return written;
}

void Session::release() {
  runner_.reset();
  image_.reset();
}

}  // namespace jet::dao
