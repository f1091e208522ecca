#pragma once

#include <QSocketNotifier>
#include <functional>
#include <memory>

#include "platform/descriptor.h"

namespace telarium {

/// While it lives, a signal that asks the program to end, as at a logout, calls a function from the
/// message loop, once the work in hand lets that run. A signal that was ignored stays so. There is
/// one at most.
class FineOrdinata {
 public:
  explicit FineOrdinata(std::function<void()> termina);
  ~FineOrdinata();
  FineOrdinata(const FineOrdinata&) = delete;
  FineOrdinata& operator=(const FineOrdinata&) = delete;

 private:
  Descrittore lettura_;
  Descrittore scrittura_;
  std::unique_ptr<QSocketNotifier> avviso_;
};

}  // namespace telarium
