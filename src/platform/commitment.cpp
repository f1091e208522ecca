#include "platform/commitment.h"

#include <utility>
#include <vector>

namespace telarium {
namespace {

// Never destroyed: objects that are destroyed at exit may have been made before it.
std::vector<Impegno*>& Aperti() {
  static auto& aperti = *new std::vector<Impegno*>;
  return aperti;
}

}  // namespace

Impegno::Impegno(std::function<void()> assolve) : assolve_(std::move(assolve)) {
  Aperti().push_back(this);
}

Impegno::~Impegno() {
  if (std::erase(Aperti(), this) > 0) assolve_();
}

void AssolviImpegni() {
  while (!Aperti().empty()) {
    Impegno* const ultimo = Aperti().back();
    Aperti().pop_back();
    ultimo->assolve_();
  }
}

}  // namespace telarium
