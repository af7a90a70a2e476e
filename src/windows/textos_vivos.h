#pragma once
// Texts of a window that may change while it lives: language and unit are settings.

#include <functional>
#include <utility>
#include <vector>

namespace duktores {

class TextosVivos {
 public:
  /// Sets a text now, and again whenever the settings have changed. What `pone` refers to lives as long as this.
  void Pon(std::function<void()> pone) {
    pone();
    ponen_.push_back(std::move(pone));
  }
  void Renueva() const {
    for (const auto& pone : ponen_) pone();
  }

 private:
  std::vector<std::function<void()>> ponen_;
};

}  // namespace duktores
