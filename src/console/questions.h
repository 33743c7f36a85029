// What is asked of the operator before a run.
#pragma once

#include <string>

namespace console {

/// Asks for the application of a database that was picked by hand. Offers `proposta`, or where that is empty
/// the name that the database itself gives. Empty if there is no answer, or the database can't be read.
std::string ChiediApplicazione(const std::string& percorso, const std::string& proposta);

/// True if the database is open nowhere else. As long as it is, the operator decides whether to try again
/// after five seconds. Other errors count as free: the run meets and reports them where it opens the
/// database.
bool VerificaDatabaseChiuso(const std::string& percorso);

/// Lets events run for this number of seconds, over midnight too.
void WaitFor(int secondi);

}  // namespace console
