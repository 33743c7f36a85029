#include "jet/dao/session.h"

#include "jet/file/errors.h"
#include "platform/files.h"

namespace jet::dao {

namespace {

constexpr char Source[] = "DAO.Database";

/// The whole new file in place of the old one, open and locked.
platform::File publish(image::Image& image, const std::string& path) {
  try {
    platform::Replacement replacement(path);
    image.write(replacement.file());
    return replacement.publish(platform::LockMode::Exclusive);
  } catch (const platform::DiskError& error) {
    throw file::fromDisk(error, path);
  }
}

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
  auto& old = image_->source().file();
  if (sharing_ == file::Sharing::Shared && !old.tryLock(platform::LockMode::Exclusive))
    throw file::heldElsewhere(path_);
  if (!old.isStillAt(path_))
    throw runtime::Error(3197, Source, "Il database è stato modificato da un altro utente: " + path_);
  auto written = publish(*image_, path_);
  if (sharing_ == file::Sharing::Shared) written.tryLock(platform::LockMode::Shared);
  image_->rebase(std::make_unique<file::PageFile>(std::move(written), sharing_, readOnly_));
}

void Session::release() {
  runner_.reset();
  image_.reset();
}

}  // namespace jet::dao
