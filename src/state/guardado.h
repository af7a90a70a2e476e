#pragma once
// Files written whole: the old contents or the new ones stand under the name, never a part, and whoever might read or
// write the file before may do so afterwards.

#include <string>
#include <string_view>

namespace duktores {

/// What came of a save.
struct Guardado {
  int motivo = 0;       ///< number of the text that says why the file was not written; 0: it is on the disk
  std::string detalle;  ///< more about that, behind the text; may be empty
  /// What could not be kept of the old file's owner, group and attributes; told by texto::kRestos.
  std::string noQuedado;

  explicit operator bool() const { return motivo == 0; }
};

/// The save failed with this `errno`.
Guardado FalloDelSistema(int numero);

/// Why `ruta` wasn't saved, as the user is told.
std::string TextoNoGuardado(const std::string& ruta, const Guardado& guardado);
/// What was not kept of the old file, as the user is told; empty if all was.
std::string TextoRestos(const Guardado& guardado);

/// A link as the last part of a path: the file that it shows to is written and it stays one, or it is replaced.
enum class Enlace { seguido, reemplazado };

/// Writes a file beside its place under another name, renames it and waits until both are on the disk. The file keeps
/// its rights, group, ACL and attributes; a read-only one, or one that is no regular file, is not replaced. In a folder
/// that others can write to, a link is followed only if it belongs to the user or to the folder's owner.
Guardado EscribeFichero(const std::string& ruta, std::string_view contenido, Enlace enlace = Enlace::seguido);

/// Makes a folder and those above it where they are missing, on the disk. 0, or the `errno` of what failed.
int HazCarpeta(const std::string& ruta);

}  // namespace duktores
