#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// Numbers and texts as bytes, the same on every machine, for what the history writes.
namespace telarium {

/// Puts bytes one behind the other.
class ScrittoreDiByte {
 public:
  /// A number in as few bytes as it needs: seven bits in each, the lowest first; the eighth says
  /// that more follow.
  void Numero(std::uint64_t numero) {
    for (; numero >= 0x80; numero >>= 7)
      byte_ += static_cast<char>(numero | 0x80);
    byte_ += static_cast<char>(numero);
  }
  /// One that can be negative: 0, -1, 1, -2 ... become 0, 1, 2, 3 ...
  void ConSegno(std::int64_t numero) {
    const auto doppio = static_cast<std::uint64_t>(numero) << 1;
    Numero(numero < 0 ? ~doppio : doppio);
  }
  /// A text behind its length.
  void Testo(std::string_view testo) {
    Numero(testo.size());
    byte_ += testo;
  }
  /// A number in a given count of bytes, the lowest first.
  void Fisso(std::uint64_t numero, int quanti) {
    for (int i = 0; i < quanti; ++i)
      byte_ += static_cast<char>(numero >> (8 * i));
  }
  void Grezzo(std::string_view byte) { byte_ += byte; }

  const std::string& Byte() const { return byte_; }
  std::string Prendi() { return std::move(byte_); }

 private:
  std::string byte_;
};

/// Takes them off again. Past the end, and of what no writer made, it gives 0 and empty texts, and
/// is no longer Sano; so a reader may ask at its end alone.
class LettoreDiByte {
 public:
  explicit LettoreDiByte(std::string_view byte) : resto_(byte) {}

  bool Sano() const { return sano_; }
  bool Finito() const { return resto_.empty() || !sano_; }
  std::size_t Restano() const { return resto_.size(); }

  std::uint64_t Numero() {
    std::uint64_t numero = 0;
    for (int bit = 0; bit < 64; bit += 7) {
      const std::uint64_t uno = Fisso(1);
      numero |= (uno & 0x7F) << bit;
      if (uno < 0x80) return numero;
    }
    return Guasto();
  }
  /// A number that must lie within bounds.
  std::uint64_t NumeroTra(std::uint64_t minimo, std::uint64_t massimo) {
    const std::uint64_t numero = Numero();
    return numero >= minimo && numero <= massimo ? numero : Guasto();
  }
  std::int64_t ConSegno() {
    const std::uint64_t doppio = Numero();
    return static_cast<std::int64_t>(doppio & 1 ? ~(doppio >> 1) : doppio >> 1);
  }
  std::string_view Grezzo(std::size_t quanti) {
    if (quanti > resto_.size()) {
      Guasto();
      return {};
    }
    const std::string_view preso = resto_.substr(0, quanti);
    resto_.remove_prefix(quanti);
    return preso;
  }
  std::string_view Testo() { return Grezzo(Numero()); }
  std::uint64_t Fisso(int quanti) {
    std::uint64_t numero = 0;
    int bit = 0;
    for (const char uno : Grezzo(static_cast<std::size_t>(quanti))) {
      numero |= static_cast<std::uint64_t>(static_cast<unsigned char>(uno)) << bit;
      bit += 8;
    }
    return numero;
  }
  std::uint64_t Guasto() {
    sano_ = false;
    resto_ = {};
    return 0;
  }

 private:
  std::string_view resto_;
  bool sano_ = true;
};

}  // namespace telarium
