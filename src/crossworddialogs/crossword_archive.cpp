#include "crossworddialogs/crossword_archive.h"

#include <algorithm>
#include <utility>

#include "model/crossword_file.h"
#include "platform/codepage.h"
#include "platform/platform.h"
#include "platform/text.h"

namespace telarium {
namespace {

namespace fs = std::filesystem;

constexpr const char* NomeArchivio = "Archivio cruciverba";
constexpr const char* NomeSenzaCruciverba = "Telar000.tlrm";
constexpr const char* Estensione = ".tlrm";
constexpr std::size_t FineEtichettaAutore = 13;  // characters of line 1 before the author's data

bool Leggibile(const Percorso& cartella) {
  std::vector<Percorso> ignorate;
  return !ElencaCartelle(cartella, ignorate);
}

bool ConUnita(const Percorso& nome) {
  return nome.native().size() > 1 && nome.native()[1] == ':';
}

Percorso NomeIntero(const Percorso& cartella, const Percorso& nome) {
  Percorso intero = cartella / nome;
  // Separators of either kind count, whichever the user's habit.
  const std::string& testo = intero.native();
  if (testo.find('.', testo.find_last_of("/\\")) == std::string::npos) intero += Estensione;
  return intero;
}

// Whether a file can have that name: the folder is there, and nothing else has the name.
bool NomePossibile(const Percorso& nome) {
  std::error_code errore;
  const fs::file_status stato = fs::status(nome, errore);
  const bool libero = stato.type() == fs::file_type::not_found;
  return (libero || fs::is_regular_file(stato)) && fs::is_directory(nome.parent_path(), errore);
}

bool RiscrivereFile(const Percorso& nome) {
  const Messaggio domanda{.testo = Unisci("Il file ", Maiuscole(TestoPercorso(nome)),
                                          " esiste già; vuoi riscriverlo?"_cp),
                          .titolo = "Salvataggio file",
                          .pulsanti = Pulsanti::OkAnnulla};
  return ChiUsa().MostraMessaggio(domanda) == Risposta::Ok;
}

bool ScriviConAutore(const Percorso& nome, const std::string& autore) {
  std::string riga = Schema(1);
  riga.resize(FineEtichettaAutore, ' ');
  std::swap(Schema(1), riga += autore);
  if (ScriviCruciverba(nome)) return true;
  Schema(1) = riga;
  return false;
}

}  // namespace

Percorso CartellaArchivio() {
  const Percorso archivio = CartellaProgramma / NomeArchivio;
  std::error_code errore;
  fs::create_directory(archivio, errore);
  return Leggibile(archivio) ? archivio : CartellaProgramma;
}

void RinunciaAdAprire() {
  if (NomeCruciverba.empty()) ModoGriglia = ModoAnteprima;
}

std::string AutoreDelCruciverba() {
  return Schema(1).substr(std::min(FineEtichettaAutore, Schema(1).size()));
}

Percorso NomeProposto() {
  return NomeCruciverba.empty() ? Percorso(NomeSenzaCruciverba) : NomeCruciverba;
}

bool SalvaNellArchivio(const Percorso& cartella, const Percorso& nome, const std::string& autore) {
  const Percorso intero = NomeIntero(cartella, nome);
  // No drive has a letter here.
  if (nome.filename().empty() || ConUnita(nome) || !NomePossibile(intero)) {
    Avvisa("Errore di nome file o accesso al disco!");
    return false;
  }
  std::error_code ignorato;
  if (!fs::exists(intero, ignorato) || RiscrivereFile(intero)) {
    if (!ScriviConAutore(intero, autore)) return false;
    NomeCruciverba = intero;
    SchemaModificato = Falso;
  }
  static_cast<void>(ScriviIstantanea());  // a failure has shown its message
  return true;
}

}  // namespace telarium
