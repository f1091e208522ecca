#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string_view>

#include "dictionary/open_dictionary.h"
#include "model/state.h"
#include "platform/temporary.h"
#include "support/crossword_state.h"
#include "support/scripted_platform.h"

/// What a target is: one input, which must never end the process.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace telarium {

/// A platform whose user closes every message with OK and accepts every dead end.
class QuietPlatform : public ScriptedPlatform {
 public:
  Utente& ChiUsa() override { return quiet_; }

 private:
  class QuietUser : public ScriptedUser {
    Risposta MostraMessaggio(const Messaggio&) override { return Risposta::Ok; }
    Risposta ChiediVicoloCieco(const std::string&) override { return Risposta::Si; }
  };

  QuietUser quiet_;
};

/// The state as at program start, with a program folder of the target's own and a quiet platform,
/// which is given.
inline QuietPlatform& StartFresh() {
  static QuietPlatform platform;
  static const CartellaTemporanea folder;
  Forget();
  ImpostaPiattaforma(&platform);
  CartellaProgramma = folder.Nome();
  IlDizionario() = Dizionario(CartellaProgramma);
  return platform;
}

inline std::string_view TextOf(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

/// Whether an input is one of the few, always the same ones, for which a slow step is made too.
inline bool OneIn(std::size_t inputs, std::string_view input) {
  return std::hash<std::string_view>()(input) % inputs == 0;
}

}  // namespace telarium
