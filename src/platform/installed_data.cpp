#include "platform/installed_data.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <limits>
#include <map>
#include <sys/stat.h>

#include "platform/codepage.h"
#include "platform/platform.h"
#include "platform/text.h"

namespace telarium {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t MaxByteRegistro = 1 << 20;

// What the first package installed, which kept no record.
constexpr struct {
  const char* nome;
  std::uint64_t impronta;
} PrimoPacchetto[] = {
    // clang-format off
    {"LessicoFrancese.dat", 0xb8145ce58bd29c7f},
    {"LessicoInglese.dat", 0x57660dfd574a5e59},
    {"LessicoItaliano.dat", 0x097c66b1ccd0e423},
    {"LessicoLatino.dat", 0xb7db4e991631b78e},
    {"PRENDIFILETELARIUM.DOC", 0xde1df50fd7cf5a81},
    {"STANDARD.dfc", 0x95e3675620c100bb},
    {"TELARIUM7.html", 0x500338e821663cf3},
    {"TELARIUM7.mht", 0xfaff782fd6d53029},
    {"TELARIUMa.jpg", 0xa4db3edd427b3173},
    {"TELARIUMb.jpg", 0xec5046da67f6c96a},
    {"TLRMTIPS.TXT", 0xf5ff0bae1e646183},
    {"indirizzi.txt", 0x4796db3f3fcbcc71},
    {"telarium.INI", 0x81ffb1e5b131cae9},
    {"Archivio cruciverba/A tavola.tlrm", 0x3d7274dd3409c3ec},
    {"Archivio cruciverba/Buon viaggio.tlrm", 0x6dda0e6389d10d09},
    {"Archivio cruciverba/Primo incontro.tlrm", 0x094df09cb172eec9},
    // clang-format on
};

// FNV-1a: the records that programs of all versions left hold it. Nobody gains by forging one.
std::uint64_t Impronta(std::string_view contenuto) {
  std::uint64_t impronta = 0xcbf29ce484222325;
  for (const char byte : contenuto)
    impronta = (impronta ^ static_cast<unsigned char>(byte)) * 0x100000001b3;
  return impronta;
}

// Size and time of the last change of an installed file, the latter as no program can set it: where
// both are as before, the file need not be read. Empty when the system does not tell.
std::string Timbro(const Percorso& nome) {
  struct stat stato {};
  if (::stat(nome.c_str(), &stato) != 0) return {};
  return Unisci(stato.st_size, '.', stato.st_ctim.tv_sec, '.', stato.st_ctim.tv_nsec);
}

std::optional<std::string> Contenuto(const Percorso& nome) {
  std::string contenuto;
  if (LeggiFile(nome, std::numeric_limits<std::int32_t>::max(), contenuto) != EsitoLettura::Letto)
    return std::nullopt;
  return contenuto;
}

// The versions of the installed files that a program folder has met.
class Registro {
 public:
  explicit Registro(const Percorso& file) : file_(file) {
    for (const auto& [nome, impronta] : PrimoPacchetto)
      versioni_[nome].push_back({impronta, {}});
    std::string righe;
    leggibile_ = LeggiFile(file, MaxByteRegistro, righe) != EsitoLettura::Illeggibile;
    std::string_view riga;
    for (LettoreDiRighe lettore(righe); lettore.Prossima(riga);)
      PrendiRiga(riga);
  }

  /// A lost or damaged record costs one question too many; one that is there and cannot be read
  /// now must not be made anew.
  bool Leggibile() const { return leggibile_; }

  bool Conosce(const std::string& nome, std::uint64_t impronta) const {
    const auto voce = versioni_.find(nome);
    return voce != versioni_.end() &&
           std::any_of(voce->second.begin(), voce->second.end(),
                       [&](const Versione& una) { return una.impronta == impronta; });
  }

  /// Whether the version met last is the one with this mark.
  bool InPari(const std::string& nome, const std::string& timbro) const {
    const auto voce = versioni_.find(nome);
    return voce != versioni_.end() && !timbro.empty() && voce->second.back().timbro == timbro;
  }

  void Segna(const std::string& nome, std::uint64_t impronta, const std::string& timbro) {
    std::vector<Versione>& versioni = versioni_[nome];
    std::erase_if(versioni, [&](const Versione& una) { return una.impronta == impronta; });
    versioni.push_back({impronta, timbro});
    cambiato_ = true;
  }

  /// A record that cannot be written is made anew at a later start.
  void Scrivi() const {
    if (!cambiato_) return;
    std::string righe;
    for (const auto& [nome, versioni] : versioni_) {
      for (const Versione& una : versioni)
        righe += Unisci(una.impronta, '\t', una.timbro, '\t', nome, '\n');
    }
    [[maybe_unused]] const auto ignorato = ScriviFile(file_, righe);
  }

 private:
  struct Versione {
    std::uint64_t impronta;
    std::string timbro;  // of the installed file; empty when it has not been seen
  };

  void PrendiRiga(std::string_view riga) {
    const std::size_t primo = riga.find('\t');
    const std::size_t secondo = riga.find('\t', primo + 1);
    if (primo == std::string_view::npos || secondo == std::string_view::npos) return;
    std::uint64_t impronta = 0;
    const auto letto = std::from_chars(riga.data(), riga.data() + primo, impronta);
    if (letto.ec != std::errc() || letto.ptr != riga.data() + primo) return;
    Segna(std::string(riga.substr(secondo + 1)), impronta,
          std::string(riga.substr(primo + 1, secondo - primo - 1)));
    cambiato_ = false;
  }

  Percorso file_;
  std::map<std::string, std::vector<Versione>> versioni_;  // by name, the version met last behind
  bool cambiato_ = false;
  bool leggibile_ = true;
};

// Such a file is the user's work, or the program itself writes it.
bool DiChiUsa(const Percorso& nome) {
  return nome == "telarium.INI" || nome == "indirizzi.txt" || nome.extension() == ".tlrm";
}

class Aggiornamento {
 public:
  Aggiornamento(const Percorso& installati, const Percorso& cartella)
      : installati_(installati),
        cartella_(cartella),
        registro_(cartella / NomeRegistroInstallati) {}

  bool Possibile() const { return registro_.Leggibile(); }

  void Esamina(const Percorso& nome) {
    const std::string timbro = Timbro(installati_ / nome);
    if (registro_.InPari(nome.string(), timbro)) return;
    const auto installato = Contenuto(installati_ / nome);
    const auto proprio = Contenuto(Proprio(nome));
    if (!installato || !proprio) return;  // what is missing has been tried to copy before
    const File file = {nome, Impronta(*installato), timbro};
    const std::uint64_t propria = Impronta(*proprio);
    if (propria == file.impronta) {
      Segna(file);
    } else if (registro_.Conosce(nome.string(), propria)) {
      Sostituisci(file, *installato);
    } else if (DiChiUsa(nome) || registro_.Conosce(nome.string(), file.impronta)) {
      Segna(file);
    } else {
      modificati_.push_back(file);
    }
  }

  void ChiediDeiModificati() {
    if (modificati_.empty() || !CartellaScrivibile(cartella_)) return;
    const bool sostituire = ChiUsa().MostraMessaggio({.testo = Domanda(),
                                                      .pulsanti = Pulsanti::OkAnnulla,
                                                      .icona = Icona::Domanda}) == Risposta::Ok;
    for (const File& file : modificati_)
      sostituire ? MettiDaParteESostituisci(file) : Segna(file);
  }

  /// Last of all: what a killed start has not recorded is looked at again.
  std::vector<CopiaFallita> Concludi() {
    registro_.Scrivi();
    return std::move(falliti_);
  }

 private:
  struct File {
    Percorso nome;           // below the installed data
    std::uint64_t impronta;  // of the installed one
    std::string timbro;
  };

  Percorso Proprio(const Percorso& nome) const {
    Percorso cartella = cartella_;
    for (const Percorso& parte : nome.parent_path())
      cartella = PercorsoDellaCartella(cartella, parte);
    return PercorsoNellaCartella(cartella, nome.filename());
  }

  std::string Domanda() const {
    std::string nomi;
    for (const File& file : modificati_)
      nomi += Unisci(nomi.empty() ? "" : ", ", TestoPercorso(file.nome));
    return Unisci(
        "Con Telarium è installata un'altra versione di questi file, che nella cartella "
        "programma risultano modificati:\n\n"_cp,
        nomi,
        "\n\nOK: la versione installata ne prende il posto, e i file modificati restano nella "
        "cartella \"",
        CartellaSostituiti,
        "\".\nAnnulla: restano al loro posto, e per questa versione la domanda non si ripete.");
  }

  void Segna(const File& file) { registro_.Segna(file.nome.string(), file.impronta, file.timbro); }

  void Sostituisci(const File& file, std::string_view installato) {
    if (const auto errore = ScriviFile(Proprio(file.nome), installato)) {
      falliti_.push_back({file.nome, errore});
    } else {
      Segna(file);
    }
  }

  void MettiDaParteESostituisci(const File& file) {
    const auto installato = Contenuto(installati_ / file.nome);
    const auto proprio = Contenuto(Proprio(file.nome));
    if (!installato || !proprio) return;
    if (const auto errore = MettiDaParte(file.nome, *proprio)) {
      falliti_.push_back({file.nome, errore});
    } else {
      Sostituisci(file, *installato);
    }
  }

  // An earlier one that was put aside stays: the later ones are numbered.
  std::error_code MettiDaParte(const Percorso& nome, std::string_view contenuto) const {
    std::error_code errore;
    const Percorso cartella = cartella_ / CartellaSostituiti / nome.parent_path();
    fs::create_directories(cartella, errore);
    if (errore) return errore;
    Percorso libero = nome.filename();
    for (int numero = 2;; ++numero) {
      errore = ScriviFileNuovo(cartella / libero, contenuto);
      if (errore != std::errc::file_exists) return errore;
      libero = nome.stem();
      libero += Unisci(' ', numero);
      libero += nome.extension();
    }
  }

  Percorso installati_;
  Percorso cartella_;
  Registro registro_;
  std::vector<File> modificati_;
  std::vector<CopiaFallita> falliti_;
};

// The encyclopedia of a build tree's data, and its log: never exchanged below one that has grown.
bool DellEnciclopedia(const Percorso& nome) {
  return nome.string().starts_with("telarium1.mdb");
}

// An unreadable folder has been told when it was to be copied from.
std::vector<Percorso> NomiInstallati(const Percorso& installati) {
  std::vector<Percorso> nomi;
  std::error_code errore;
  for (fs::recursive_directory_iterator voce(installati, errore), fine; !errore && voce != fine;
       voce.increment(errore)) {
    const Percorso nome = voce->path().lexically_relative(installati);
    if (FileNascosto(nome.filename()) || RestaInstallata(nome)) {
      voce.disable_recursion_pending();
    } else if (FileOrdinario(voce->path()) && !DellEnciclopedia(nome)) {
      nomi.push_back(nome);
    }
  }
  std::sort(nomi.begin(), nomi.end());
  return nomi;
}

}  // namespace

bool RestaInstallata(const Percorso& nome) {
  return nome == CartellaListeInstallate || nome == CartellaLessiciInstallati;
}

std::vector<CopiaFallita> AggiornaCartella(const Percorso& installati, const Percorso& cartella,
                                           FileModificati modificati) {
  Aggiornamento lavoro(installati, cartella);
  if (!lavoro.Possibile()) return {};
  for (const Percorso& nome : NomiInstallati(installati))
    lavoro.Esamina(nome);
  if (modificati == FileModificati::Chiedi) lavoro.ChiediDeiModificati();
  return lavoro.Concludi();
}

}  // namespace telarium
