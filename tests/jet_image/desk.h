#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "jet/dao/session/session.h"
#include "jet_dao/office.h"
#include "platform/files.h"

/// An image of a file on disk, worked on with SQL and with the image's own calls.
namespace desk {

namespace image = jet::image;

class Desk {
 public:
  /// A new file in a folder of its own, in which `statements` have been carried out and saved.
  explicit Desk(const std::vector<std::string>& statements, const std::string& name = "a.mdb")
      : path_(folder_.path(name)) {
    office::make(path_, statements);
    reopen();
  }

  image::Image& image() { return session_->image(); }
  const std::string& path() const { return path_; }
  std::string path(const std::string& name) const { return folder_.path(name); }
  std::uint32_t page(const std::string& table) { return image().find(table)->page; }

  std::int64_t run(const std::string& sql) { return run(session_->runner().compile(sql)); }
  std::int64_t run(const jet::sql::Statement& statement) {
    return session_->runner().execute(statement, {}, true);
  }
  /// Number of the error in which the statement ends, or 0.
  template <typename Statement>
  int error(const Statement& statement) {
    return office::errorOf([&] { run(statement); });
  }
  image::Statement prepare(const std::string& sql) {
    auto& runner = session_->runner();
    return runner.prepare(runner.selection(sql, {}), {});
  }
  /// Rows of a SELECT, fields joined by '|', rows by blanks, as the image keeps them.
  std::string rows(const std::string& sql) {
    auto prepared = prepare(sql);
    std::string result;
    while (prepared.step()) {
      if (!result.empty()) result += " ";
      for (int column = 0; column < sqlite3_column_count(prepared.handle()); ++column)
        result += (column ? "|" : "") + (prepared.null(column) ? std::string("Null") : prepared.text(column));
    }
    return result;
  }
  /// Tables whose rows lie in the image, blank between them, without system tables.
  std::string loaded() {
    std::string names;
    for (const auto& table : image().tables())
      if (table.loaded() && table.flags == 0) names += (names.empty() ? "" : " ") + table.name;
    return names;
  }

  void save() { session_->save(); }
  /// Saves and goes on over the file as it is read anew.
  void reopen() {
    if (session_) session_->save();
    abandon();
  }
  /// Opens the file again without saving.
  void abandon() {
    session_.reset();
    session_ = std::make_unique<jet::dao::Session>(
        std::make_unique<jet::file::PageFile>(path_, jet::file::Sharing::Exclusive, false));
  }
  /// Saves, and goes on over a compact copy.
  void compact() {
    session_->save();
    session_.reset();
    jet::dao::DBEngine::CompactDatabase(path_, path_ + ".new");
    goOnWith(path_ + ".new");
  }
  /// Goes on over another file, without saving.
  void goOnWith(const std::string& path) {
    session_.reset();
    platform::copyFile(path, path_);
    abandon();
  }
  /// Copies the file as it was last saved; the path of the copy.
  std::string copy(const std::string& name) const {
    std::filesystem::copy_file(platform::toSystemPath(path_), platform::toSystemPath(path(name)));
    return path(name);
  }
  /// What the checker has against the file, as it was last saved.
  std::string complaints(const std::string& options = "--strict") const {
    return office::complaints(path_, options);
  }

 private:
  support::TempFolder folder_;
  std::string path_;
  std::unique_ptr<jet::dao::Session> session_;
};

constexpr std::uint32_t Cascades =
    image::RelationDesign::UpdateCascade | image::RelationDesign::DeleteCascade;

/// A relation between two tables with these column pairs.
inline image::RelationDesign relation(const std::string& name, const std::string& table,
                                      const std::string& foreignTable,
                                      std::vector<image::RelationDesign::Pair> pairs,
                                      std::uint32_t attributes = 0) {
  return {name, table, foreignTable, attributes, std::move(pairs)};
}

}  // namespace desk
