#include "jet/dao/engine.h"

#include <algorithm>
#include <vector>

#include "jet/dao/session/session_database.h"
#include "jet/file/errors.h"
#include "jet/file/write/compaction.h"
#include "jet/file/write/database_writer.h"
#include "jet/file/write/empty_database.h"
#include "platform/files.h"

namespace jet::dao {

namespace {

constexpr std::size_t MaxDepth = 5;

std::unique_ptr<file::PageFile> openPages(const std::string& path, bool exclusive, bool readOnly) {
  return std::make_unique<file::PageFile>(path, exclusive ? file::Sharing::Exclusive : file::Sharing::Shared,
                                          readOnly);
}

/// Runs `work` on a file that comes into being at `path` whole or not at all, for those who may use the one
/// at `model`.
template <typename Work>
platform::File makeFile(const std::string& path, Work work, const std::string& model = {}) {
  try {
    if (platform::inspectFile(path)) throw file::jetError(DatabaseExists, "Il database esiste già: " + path);
    platform::Replacement replacement(path, model);
    work(replacement.file());
    return replacement.publish(platform::LockMode::Exclusive);
  } catch (const platform::DiskError& error) {
    throw file::fromDisk(error);
  }
}

}  // namespace

struct Workspace::State : std::enable_shared_from_this<Workspace::State> {
  std::vector<std::shared_ptr<Session>> sessions;
  std::size_t depth = 0;  // open transactions

  DatabasePtr add(std::unique_ptr<file::PageFile> pages) {
    auto session = std::make_shared<Session>(std::move(pages));
    for (std::size_t i = 0; i < depth; ++i) session->image().begin();
    sessions.push_back(session);
    return std::make_shared<SessionDatabase>(session, [owner = weak_from_this()](Session& closing) {
      if (const auto state = owner.lock()) state->close(closing);
    });
  }

  /// The end of a Database: now, or at the end of the transaction that its changes belong to.
  void close(Session& session) {
    if (depth > 0)
      session.closed = true;
    else
      finish(session);
  }

  /// Saves a session and lets its file go, also where the save fails.
  void finish(Session& session) {
    const auto held = remove(session);
    session.closed = true;
    try {
      session.save();
    } catch (...) {
      session.release();
      throw;
    }
    session.release();
  }

  std::shared_ptr<Session> remove(Session& session) {
    const auto found = std::find_if(sessions.begin(), sessions.end(),
                                    [&](const auto& each) { return each.get() == &session; });
    if (found == sessions.end()) return nullptr;
    auto held = *found;
    sessions.erase(found);
    return held;
  }

  /// Carries `work` out for every session; the first error is thrown when all have had their turn.
  template <typename Work>
  void forAll(Work work) {
    std::exception_ptr first;
    for (const auto& session : std::vector(sessions)) {
      try {
        work(*session);
      } catch (const runtime::Error&) {
        if (!first) first = std::current_exception();
      }
    }
    if (first) std::rethrow_exception(first);
  }
};

Workspace::Workspace() : state_(std::make_shared<State>()) {}

Workspace::~Workspace() {
  for (const auto& session : state_->sessions) session->release();
}

DatabasePtr Workspace::OpenDatabase(const std::string& path, bool exclusive, bool readOnly) {
  return state_->add(openPages(path, exclusive, readOnly));
}

DatabasePtr Workspace::OpenForTrial(const std::string& path) {
  file::PageFile read(path, file::Sharing::Shared, true);
  return state_->add(std::make_unique<file::PageFile>(std::move(read.file()), file::Sharing::Shared, false));
}

DatabasePtr Workspace::CreateDatabase(const std::string& path) {
  auto made = makeFile(path, [](platform::File& out) { file::writeEmptyDatabase(out); });
  return state_->add(std::make_unique<file::PageFile>(std::move(made), file::Sharing::Exclusive, false));
}

void Workspace::BeginTrans() {
  if (state_->depth >= MaxDepth) throw errorOf(TooManyTransactions, source::Workspace);
  for (const auto& session : state_->sessions) session->image().begin();
  ++state_->depth;
}

void Workspace::CommitTrans(int) {
  if (state_->depth == 0) throw errorOf(NoTransaction, source::Workspace);
  if (state_->depth > 1) {
    for (const auto& session : state_->sessions) session->image().commit();
    --state_->depth;
    return;
  }
  // A session that is saved leaves the transaction at once, so that a failure behind it takes back only the
  // rest.
  for (const auto& session : std::vector(state_->sessions)) {
    if (session->image().depth() == 0) continue;
    session->save();
    session->image().commit();
    if (!session->closed) continue;
    state_->remove(*session);
    session->release();
  }
  state_->depth = 0;
}

void Workspace::Rollback() {
  if (state_->depth == 0) throw errorOf(NoTransaction, source::Workspace);
  --state_->depth;
  state_->forAll([&](Session& session) {
    if (session.image().depth() > state_->depth) session.image().rollback();
    // What was changed before the transaction stays.
    if (session.closed && state_->depth == 0) state_->finish(session);
  });
}

void Workspace::Close() {
  while (state_->depth > 0) Rollback();
  state_->forAll([&](Session& session) { state_->finish(session); });
}

std::shared_ptr<Workspace> DBEngine::Workspaces(int index) {
  static const auto defaultWorkspace = std::make_shared<Workspace>();
  if (index != 0) throw errorOf(ItemNotFound, source::Workspaces);
  return defaultWorkspace;
}

DatabasePtr DBEngine::OpenDatabase(const std::string& path, bool exclusive, bool readOnly) {
  return Workspaces(0)->OpenDatabase(path, exclusive, readOnly);
}

void DBEngine::CompactDatabase(const std::string& source, const std::string& destination) {
  const file::PageFile old(source, file::Sharing::Exclusive, true);
  const auto compact = [&](platform::File& out) {
    file::writeCompacted(old, out);
    old.requireUnchanged();
  };
  makeFile(destination, compact, source);
}

}  // namespace jet::dao
