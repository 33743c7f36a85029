#pragma once

namespace jet::image {

class Connection;
class Rows;

/// Registers the virtual table module jet_file(<page>): the rows of a table straight from the file, once
/// through in file order; its rowids are those that loading would give. `rows` must outlive the connection's
/// use.
void registerFileScan(const Connection& connection, Rows& rows);

}  // namespace jet::image
