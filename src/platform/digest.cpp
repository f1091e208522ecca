#include "platform/digest.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>

namespace telarium {
namespace {

constexpr std::uint64_t Primo = 0x9E3779B97F4A7C15;
constexpr std::uint64_t Secondo = 0xC2B2AE3D27D4EB4F;
constexpr std::size_t Corsie = 4;  // which the processor works on at once
constexpr std::size_t BytePerParola = sizeof(std::uint64_t);

std::uint64_t Numero32(const std::byte* byte) {
  std::uint32_t numero;
  std::memcpy(&numero, byte, sizeof numero);
  return numero;
}

// Less than eight bytes as a little-endian number, on a machine of that order: of two pieces that
// overlap, or of single bytes, which is sooner done than a copy of an unknown length.
std::uint64_t PochiByte(std::span<const std::byte> byte) {
  const std::size_t quanti = byte.size();
  if (quanti >= sizeof(std::uint32_t)) {
    const std::size_t resto = quanti - sizeof(std::uint32_t);
    return Numero32(byte.data()) | Numero32(byte.data() + resto) << (8 * resto);
  }
  std::uint64_t numero = 0;
  for (std::size_t i = 0; i < quanti; ++i)
    numero |= std::to_integer<std::uint64_t>(byte[i]) << (8 * i);
  return numero;
}

// The next bytes, eight at most, as a little-endian number.
std::uint64_t Prendi(std::span<const std::byte>& byte) {
  const std::size_t quanti = std::min(byte.size(), BytePerParola);
  std::uint64_t parola = 0;
  if (std::endian::native == std::endian::little && quanti == BytePerParola) {
    std::memcpy(&parola, byte.data(), BytePerParola);
  } else if (std::endian::native == std::endian::little) {
    parola = PochiByte(byte);
  } else {
    for (std::size_t i = 0; i < quanti; ++i)
      parola |= std::to_integer<std::uint64_t>(byte[i]) << (8 * i);
  }
  byte = byte.subspan(quanti);
  return parola;
}

std::uint64_t Mescola(std::uint64_t stato, std::uint64_t parola) {
  return (std::rotl(stato ^ (parola * Secondo), 29)) * Primo;
}

std::uint64_t Termina(std::uint64_t stato) {
  stato = (stato ^ (stato >> 33)) * Secondo;
  stato = (stato ^ (stato >> 29)) * Primo;
  return stato ^ (stato >> 32);
}

}  // namespace

std::uint64_t ImprontaDi(std::span<const std::byte> byte) {
  std::uint64_t stato = Primo ^ byte.size();
  if (byte.size() >= Corsie * BytePerParola) {
    std::array<std::uint64_t, Corsie> corsie = {stato, stato + 1, stato + 2, stato + 3};
    while (byte.size() >= Corsie * BytePerParola)
      for (std::uint64_t& corsia : corsie)
        corsia = Mescola(corsia, Prendi(byte));
    for (const std::uint64_t corsia : corsie)
      stato = Mescola(stato, corsia);
  }
  while (!byte.empty())
    stato = Mescola(stato, Prendi(byte));
  return Termina(stato);
}

std::uint64_t ImprontaDi(std::string_view testo) {
  return ImprontaDi(std::as_bytes(std::span(testo)));
}

}  // namespace telarium
