// A call of the tool, from its options to the saved reference.
#include "apps/catalogo/session.h"

#include <ostream>
#include <sstream>

#include "apps/catalogo/catalogue.h"
#include "apps/catalogo/contents.h"
#include "jet/dao/engine.h"
#include "platform/disk.h"
#include "platform/paths.h"
#include "runtime/error.h"

namespace catalogo {
namespace {

using namespace jet::dao;

std::string write(Database& reference, Database& model, const Request& request) {
  std::ostringstream summary;
  const Counts counts = writeCatalogue(reference, model, request.norvo);
  summary << request.norvo << ": " << counts.fields << " campi, " << counts.indexes << " indici, "
          << counts.relations << " relazioni, " << copyQueries(reference, model) << " query\n";
  const auto copyAll = [&](const char* prefix, const std::vector<std::string>& tables) {
    for (const auto& table : tables)
      summary << prefix << table << ": " << copyTable(reference, model, prefix, table) << " righe\n";
  };
  copyAll("ADD_", request.add);
  copyAll("INS_", request.ins);
  return summary.str();
}

}  // namespace

int run(const Request& request, std::ostream& summary, std::ostream& errors) {
  const std::string path = platform::fromSystemPath(request.reference);
  Workspace workspace;
  bool made = false;
  try {
    const auto model = workspace.OpenDatabase(platform::fromSystemPath(request.model), false, true);
    const auto reference =
        request.create ? workspace.CreateDatabase(path) : workspace.OpenDatabase(path, true);
    made = request.create;
    workspace.BeginTrans();
    const std::string text = write(*reference, *model, request);
    if (!(summary << text << std::flush))
      throw runtime::Error(runtime::DeviceIoError, "aggnorvo-catalogo", "Il riepilogo non si può scrivere");
    reference->Close();
    workspace.CommitTrans();
    return 0;
  } catch (const runtime::Error& error) {
    errors << "aggnorvo-catalogo: errore " << error.number() << ": " << error.description() << "\n";
  }
  workspace.Close();
  if (made) platform::removeFile(path);
  return 1;
}

}  // namespace catalogo
