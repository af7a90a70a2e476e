#pragma once
// Whole files.

#include <cstddef>
#include <optional>
#include <string>
#include <system_error>

namespace duktores {

/// The bytes of a regular file; none, with the reason in `motivo`, if one read fails, if it has more than `maximo`
/// bytes or if it is no such file. A pipe isn't waited for.
std::optional<std::string> LeeFichero(const std::string& ruta, std::error_code& motivo,
                                      std::size_t maximo = std::string::npos);
std::optional<std::string> LeeFichero(const std::string& ruta);

}  // namespace duktores
