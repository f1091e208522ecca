#include "crossworddialogs/crossword_archive.h"

#include <algorithm>
#include <cctype>

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

bool Leggibile(const Percorso& cartella) {
  std::vector<Percorso> ignorate;
  return !ElencaCartelle(cartella, ignorate);
}

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
  const std::string prima = Schema(1);
  Schema(1).resize(LunghezzaEtichetta, ' ');
  Schema(1) += autore;
  const bool scritto = ScriviCruciverba(nome);
  if (!scritto) Schema(1) = prima;
  return scritto;
}

}  // namespace

Percorso CartellaArchivio() {
  const Percorso archivio = PercorsoDellaCartella(CartellaProgramma, NomeArchivio);
  std::error_code errore;
  fs::create_directory(archivio, errore);
  return Leggibile(archivio) ? archivio : CartellaProgramma;
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
  // No drive has a letter here.
  if (nome.filename().empty() || ConUnita(nome.native()) || !NomePossibile(intero)) {
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
