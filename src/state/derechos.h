#pragma once
// Who may do what with a file.

#include <sys/stat.h>

#include <string>

namespace duktores {

/// Gives the open file `nuevo` the owner, group, ACL, extended attributes and rights of the file at `ruta`, which has
/// the data `antes`. Where group or ACL can't be given, the group gets no rights rather than another one's. Returns
/// what could not be kept, in the configured language, with commas between; empty if nothing is lost.
std::string CopiaDerechos(const std::string& ruta, const struct stat& antes, int nuevo);

}  // namespace duktores
