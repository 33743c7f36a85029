#include "jet/dao/session.h"

#include "jet/file/errors.h"
#include "platform/files.h"

namespace jet::dao {

namespace {

constexpr char Source[] = "DAO.Database";

}  // namespace

Session::Session(std::unique_ptr<file::PageFile> source)
    : path_(source->path()), sharing_(source->sharing()), readOnly_(source->readOnly()) {
  image_ = std::make_unique<image::Image>(std::move(source));
  runner_ = std::make_unique<StatementRunner>(*image_);
}

image::Image& Session::image() {
  if (!image_) throw runtime::Error(3420, Source, "Oggetto non valido: il database è chiuso");
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
    throw file::fromDisk(error, path_);
  }
}

platform::File Session::publish() {
  const bool shared = sharing_ == file::Sharing::Shared;
  auto& old = image_->source().file();
  if (shared && !old.tryLock(platform::LockMode::Exclusive)) throw file::heldElsewhere(path_);
  if (!old.isStillAt(path_))
    throw runtime::Error(3197, Source, "Il database è stato modificato da un altro utente: " + path_);
  platform::Replacement replacement(path_);
  image_->write(replacement.file());
  auto written = replacement.publish(platform::LockMode::Exclusive);
  if (shared && !written.tryLock(platform::LockMode::Shared)) throw file::heldElsewhere(path_);
  return written;
}

void Session::release() {
  runner_.reset();
  image_.reset();
}

}  // namespace jet::dao
