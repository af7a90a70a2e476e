#pragma once
// Work on a thread of its own, with a program state of its own that begins as the caller's.

#include <atomic>
#include <functional>
#include <stop_token>
#include <thread>

namespace duktores {

class Tarea {
 public:
  /// Begins at once. What `hace` throws ends it.
  explicit Tarea(std::function<void(const std::stop_token&)> hace);
  /// Asks it to stop, and waits.
  ~Tarea() = default;
  Tarea(const Tarea&) = delete;
  Tarea& operator=(const Tarea&) = delete;

  void Para() { hilo_.request_stop(); }
  bool Acabada() const { return acabada_; }
  bool Fallida() const { return acabada_ && fallida_; }

 private:
  std::atomic<bool> acabada_ = false, fallida_ = false;
  std::jthread hilo_;
};

}  // namespace duktores
