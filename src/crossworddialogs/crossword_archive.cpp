#include "crossworddialogs/crossword_archive.h"

#include <algorithm>
#include <cctype>

#include "model/crossword_file.h"
#include "model/documento.h"
#include "model/state.h"
#include "platform/codepage.h"
#include "platform/platform.h"
#include "platform/text.h"

namespace telarium {
namespace {

namespace fs = std::filesystem;

constexpr const char* NomeArchivio = "Archivio cruciverba";
constexpr const char* NomeSenzaCruciverba = "Telar000.tlrm";
constexpr const char* Estensione = ".tlrm";

// Whether a name begins with the letter of a drive, as "C:" or "C:\\uno".
bool ConUnita(const std::string& nome) {
  const bool lettera =
      nome.size() > 1 && nome[1] == ':' && std::isalpha(static_cast<unsigned char>(nome[0]));
  return lettera && (nome.size() == 2 || nome[2] == '/' || nome[2] == '\\');
}

Percorso NomeIntero(const Percorso& cartella, const Percorso& nome) {
  Percorso intero = cartella / nome;
  // Separators of either kind count, whichever the user's habit.
  const std::string& testo = intero.native();
  if (testo.find('.', testo.find_last_of("/\\")) == std::string::npos) intero += Estensione;
  return intero;
}

// Why no file can have that name: the folder is not there, or something else has the name.
std::error_code ErroreDelNome(const Percorso& nome) {
  std::error_code errore;
  const fs::file_status stato = fs::status(nome, errore);
  if (fs::is_regular_file(stato)) return {};
  if (fs::is_directory(stato)) return std::make_error_code(std::errc::is_a_directory);
  if (fs::exists(stato)) return ErroreNonUnFile();
  if (stato.type() != fs::file_type::not_found) return errore;
  if (fs::is_directory(nome.parent_path(), errore)) return {};
  return errore ? errore : std::make_error_code(std::errc::not_a_directory);
}

// What speaks against a full name, made of a name that the user gave; empty when nothing does.
std::string DifettoDelNome(const Percorso& nome, const Percorso& intero) {
  if (nome.filename().empty()) return "manca il nome del file";
  if (ConUnita(nome.native())) return "nessun disco ha una lettera";
  const std::error_code errore = ErroreDelNome(intero);
  return errore ? DescrizioneErrore(errore) : std::string();
}

bool RiscrivereFile(const Percorso& nome) {
  const Messaggio domanda{.testo = Unisci("Il file ", Maiuscole(TestoPercorso(nome)),
                                          " esiste già; vuoi riscriverlo?"_cp),
                          .titolo = "Salvataggio file",
                          .pulsanti = Pulsanti::OkAnnulla};
  return ChiUsa().MostraMessaggio(domanda) == Risposta::Ok;
}

bool SalvaConAutore(const Percorso& nome, const std::string& autore) {
  Cruciverba cruciverba = IlDocumento().Valore();
  std::string& riga = cruciverba.intestazione.Proprio().front();
  riga.resize(LunghezzaEtichetta, ' ');
  riga += autore;
  return SalvaComeFile(std::move(cruciverba), nome);
}

}  // namespace

Percorso CartellaArchivio() {
  const Percorso archivio = PercorsoDellaCartella(CartellaProgramma, NomeArchivio);
  std::error_code errore;
  fs::create_directory(archivio, errore);
  return ErroreDellaCartella(archivio) ? CartellaProgramma : archivio;
}

void RinunciaAdAprire() {
  if (NomeCruciverba.empty()) ModoGriglia = ModoAnteprima;
}

std::string AutoreDelCruciverba() {
  return Schema(1).substr(std::min(LunghezzaEtichetta, Schema(1).size()));
}

Percorso NomeProposto() {
  return NomeCruciverba.empty() ? Percorso(NomeSenzaCruciverba) : NomeCruciverba;
}

bool SalvaNellArchivio(const Percorso& cartella, const Percorso& nome, const std::string& autore) {
  if (NumColonne == 0) {  // a damaged snapshot was read: no file shall pay for it
    Avvisa("Il cruciverba non ha uno schema: non è possibile salvarlo."_cp, {}, Icona::Avviso);
    return false;
  }
  const Percorso intero = NomeIntero(cartella, nome);
  if (const std::string difetto = DifettoDelNome(nome, intero); !difetto.empty()) {
    Avvisa(ConCausa("Errore di nome file o accesso al disco!", intero, difetto));
    return false;
  }
  std::error_code ignorato;
  if (!fs::exists(intero, ignorato) || RiscrivereFile(intero)) {
    if (!SalvaConAutore(intero, autore)) return false;
  }
  static_cast<void>(ScriviIstantanea());  // a failure has shown its message
  return true;
}

}  // namespace telarium
