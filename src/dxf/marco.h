#pragma once
// Looks whether the text of a DXF file is one that other programs open: a frame for a drawing that a damaged disk or a
// slip in an editor has not spoilt.

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace duktores {

/// The first thing that is wrong, by its line and in plain words: lines that are no pairs of a code and a value of its
/// kind, sections, tables or blocks that aren't closed, a record without its handle or name, a section, table or record
/// that every drawing has and that isn't there, or one of these layers (in capitals), two objects of one handle, a
/// pointer to no object.
std::optional<std::string> FaltaEnMarco(std::string_view dxf, std::span<const std::string_view> capas);

}  // namespace duktores
