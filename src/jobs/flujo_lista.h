#pragma once
// The bytes of a job list on their way to the JSON parser.

#include <functional>
#include <span>
#include <stdexcept>
#include <streambuf>
#include <string>
#include <vector>

namespace duktores {

/// Thrown for a text that is no job list at all.
struct ErrorLista : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// Puts the next bytes there and tells how many; 0 at the end. Throws ErrorLista if they can't be read.
using LeeTrozo = std::function<std::size_t(std::span<char>)>;

/// What the parser should see of them: a number beyond the range of a double becomes a text, so that it is an error of
/// its job and not the end of the list; a NUL, which the parser would take for the end, is an ErrorLista.
class FlujoLista : public std::streambuf {
 public:
  explicit FlujoLista(LeeTrozo lee) : lee_(std::move(lee)), crudo_(std::size_t{1} << 16) {}

  /// The line that has been read so far, from 1.
  std::size_t Linea();

 protected:
  int_type underflow() override;

 private:
  void Pasa(char c);
  void PasaNumero();

  LeeTrozo lee_;
  std::vector<char> crudo_;
  std::string salida_, numero_;
  const char* contado_ = nullptr;  // line ends before it are in `linea_`
  std::size_t linea_ = 1;
  bool enTexto_ = false, escape_ = false, nulo_ = false;
};

}  // namespace duktores
