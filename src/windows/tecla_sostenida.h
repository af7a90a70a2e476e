#pragma once
// Whether a key is being held down. The window system marks the presses by which such a key repeats itself, but not all
// of them: one that arrives apart from the release before it passes for a new one. The two bear one time.

#include <QObject>
#include <QtGlobal>

namespace duktores {

/// Watches the keys of the whole program.
class TeclaSostenida : public QObject {
 public:
  explicit TeclaSostenida(QObject* padre);
  /// Of the press that is on its way.
  bool Repite() const { return repite_; }

 protected:
  bool eventFilter(QObject* objeto, QEvent* suceso) override;

 private:
  quint64 suelta_ = 0;  // when a key was released last; 0: unknown
  bool repite_ = false;
};

}  // namespace duktores
