// A stand-in for the desktop in fault_sweep.py: what it writes by itself and telar does not, by the
// same routines. As telar it tells a failure on standard error and ends with 1.
//
//   desktop_writer settings|snapshot      in the folder of TELARIUM_CARTELLA
#include <cstdlib>
#include <filesystem>
#include <string_view>

#include "editor/settings.h"
#include "model/crossword_file.h"
#include "platform/console/console_platform.h"

namespace {

using namespace telarium;

class CountingUser : public UtenteConsole {
 public:
  Risposta MostraMessaggio(const Messaggio& message) override {
    ++told;
    return UtenteConsole::MostraMessaggio(message);
  }

  int told = 0;
};

class Platform : public PiattaformaConsole {
 public:
  CountingUser& ChiUsa() override { return user_; }

 private:
  CountingUser user_;
};

bool WriteSettings() {
  AltezzaCaratteri = 77;
  ScriviImpostazioni();
  return true;
}

bool WriteSnapshot() {
  CartellaIstantanea = CartellaProgramma;
  return ApriCruciverba(std::filesystem::absolute("grid")) == Apertura::Intera &&
         ScriviIstantanea();
}

}  // namespace

int main(int argc, char** argv) {
  Platform platform;
  ImpostaPiattaforma(&platform);
  const char* folder = std::getenv("TELARIUM_CARTELLA");
  if (argc != 2 || !folder) return 2;
  CartellaProgramma = folder;
  try {
    const bool done = std::string_view(argv[1]) == "settings" ? WriteSettings() : WriteSnapshot();
    return done && platform.ChiUsa().told == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
  } catch (const ProgrammaTerminato&) {
    return EXIT_FAILURE;
  }
}
