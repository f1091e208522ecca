#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace telarium {

/// 64 bits that stand for some bytes: the same on every machine and in every version, since files
/// hold them. Several bytes a clock cycle for long ones. No protection against who forges one.
std::uint64_t ImprontaDi(std::span<const std::byte> byte);
std::uint64_t ImprontaDi(std::string_view testo);

}  // namespace telarium
