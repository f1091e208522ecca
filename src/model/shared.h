#pragma once

#include <atomic>
#include <cstddef>
#include <string>
#include <utility>

namespace telarium {

/// A value that its copies share until one of them is changed: copying costs a pointer, so that
/// many states of a crossword can be kept, each of which holds only what it does not have in common
/// with its neighbours. Copies may live in several threads; one object is used by one of them.
template <class T>
class Condiviso {
 public:
  Condiviso() = default;  // T{}
  Condiviso(T valore) : nodo_(new Nodo{std::move(valore)}) {}
  Condiviso(const Condiviso& altro) noexcept : nodo_(altro.nodo_) {
    if (nodo_) nodo_->copie.fetch_add(1, std::memory_order_relaxed);
  }
  Condiviso(Condiviso&& altro) noexcept : nodo_(std::exchange(altro.nodo_, nullptr)) {}
  Condiviso& operator=(Condiviso altro) noexcept {
    std::swap(nodo_, altro.nodo_);
    return *this;
  }
  ~Condiviso() {
    if (nodo_ && nodo_->copie.fetch_sub(1, std::memory_order_acq_rel) == 1) delete nodo_;
  }

  const T& operator*() const { return nodo_ ? nodo_->valore : Nullo(); }
  const T* operator->() const { return &**this; }
  operator const T&() const { return **this; }

  /// The value for changing: from now on this copy's alone. The reference holds until the next copy
  /// is made.
  T& Proprio() {
    if (!nodo_) {
      nodo_ = new Nodo{T{}};
    } else if (nodo_->copie.load(std::memory_order_acquire) > 1) {
      *this = Condiviso(nodo_->valore);
    }
    return nodo_->valore;
  }

  /// Whether the two are known to be equal without a comparison.
  bool StessoDi(const Condiviso& altro) const { return nodo_ == altro.nodo_; }

  bool operator==(const Condiviso& altro) const { return StessoDi(altro) || **this == *altro; }

 private:
  struct Nodo {
    T valore;
    std::atomic<int> copie = 1;
  };

  static const T& Nullo() {
    static const T nullo{};
    return nullo;
  }

  Nodo* nodo_ = nullptr;
};

/// For accounts of memory: about what a shared value takes besides itself, and what a value has
/// elsewhere.
inline constexpr std::size_t ByteDiUnNodo = 24;
inline std::size_t ByteAltrove(const std::string& testo) {
  constexpr std::size_t nelTesto = 15;
  return testo.size() > nelTesto ? testo.size() + ByteDiUnNodo : 0;
}
template <class Numero>
std::size_t ByteAltrove(const Numero&) {
  return 0;
}

}  // namespace telarium
