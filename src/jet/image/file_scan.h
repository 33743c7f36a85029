#pragma once

namespace jet::image {

class Image;

/// Registers the virtual table module jet_file(<page>) on the image's connection: the rows of a table
/// straight from the file, once through in file order; its rowids are those that loading would give.
void registerFileScan(Image& image);

}  // namespace jet::image
