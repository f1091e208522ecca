#include "history/chronology.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "history/file_state.h"
#include "platform/codepage.h"

namespace telarium {
namespace {

constexpr std::string_view FileCambiato = "File cambiato da un altro programma";
constexpr std::string_view MotivoRecupero = "Recupero";
constexpr std::string_view MotivoChiusura = "Chiusura del cruciverba";
constexpr std::string_view MessaggioGuasto =
    "La cronologia non può essere registrata: dopo un arresto improvviso le modifiche non "
    "salvate non si potranno recuperare."_cp;

// Each holds a file open.
constexpr std::size_t MaxCruciverba = 64;
// A full disk may have room again.
constexpr std::chrono::seconds TraDueTentativi{30};

// The step that a file holds which was read as `letto`; none when no step does.
std::optional<std::size_t> PassoDelFile(const Linea& linea, const FileDelCruciverba& conosciuto,
                                        const FileDelCruciverba& file, const Cruciverba& letto) {
  const bool noto = conosciuto.impronta == file.impronta;
  if (noto && linea.PostoDelFile()) return linea.PostoDelFile();
  // The program was killed when it had just been saved.
  if (!DiversoDalFile(linea.Attuale(), file)) return linea.Posto();
  for (std::size_t i = noto ? linea.Quanti() : 0; i-- > 0;) {
    if (linea[i].cruciverba == letto) return i;
  }
  return std::nullopt;
}

}  // namespace

// A file of steps that one or more of the opened crosswords share, since they are one.
class Cronologia::GiornaleAperto {
 public:
  GiornaleAperto(ScrittoreDiGiornali& scrittore, FileBloccato file, std::size_t byte)
      : scrittore_(scrittore), file_(scrittore.Prendi(std::move(file))), byte_(byte) {}
  ~GiornaleAperto() {
    if (file_) scrittore_.Chiudi(file_);
  }
  GiornaleAperto(const GiornaleAperto&) = delete;
  GiornaleAperto& operator=(const GiornaleAperto&) = delete;

  unsigned voce = 0;  // whose line it holds, 0 for none

  std::error_code Guasto() const {
    return file_ ? ScrittoreDiGiornali::Guasto(file_) : std::error_code();
  }

  // Past that it is begun anew, so that what was undone and forgotten takes no room for ever.
  bool TroppoLungo() const { return byte_ > 2 * Linea::MaxByte; }

  void Aggiungi(std::string record) {
    byte_ += record.size();
    scrittore_.Aggiungi(file_, std::move(record));
  }

  // This one goes when the other is on the disk, and takes no more.
  void LasciaIlPostoA(const GiornaleAperto& altro) {
    scrittore_.Elimina(std::exchange(file_, nullptr), altro.file_);
    voce = 0;
  }

 private:
  ScrittoreDiGiornali& scrittore_;
  ScrittoreDiGiornali::File file_;
  std::size_t byte_;
};

Cronologia::Cronologia(Documento& documento, Percorso cartella, Orologio orologio)
    : documento_(documento), archivio_(cartella), orologio_(std::move(orologio)) {
  if (!cartella.empty()) scrittore_ = std::make_unique<ScrittoreDiGiornali>();
  documento_.Osserva(this);
  Sostituito("Apertura");
}

Cronologia::~Cronologia() {
  documento_.Osserva(nullptr);
}

// --- Undo and redo ---

bool Cronologia::AlCruciverbaDiPrima() const {
  if (voce_ == 0) return false;
  if (!Aperta()) return true;
  const std::size_t posto = Attuale().linea.Posto();
  return posto == Attuale().ingresso || posto == 0;
}

bool Cronologia::AlCruciverbaSeguente() const {
  if (voce_ + 1 >= voci_.size()) return false;
  const Linea& linea = Attuale().linea;
  return linea.Posto() == Attuale().uscita || linea.Posto() + 1 == linea.Quanti();
}

std::string Cronologia::DaAnnullare() const {
  if (!Aperta()) return std::string(voci_.empty() ? std::string_view() : MotivoChiusura);
  const Linea& linea = Attuale().linea;
  if (AlCruciverbaDiPrima()) return Attuale().motivo;
  return linea.Posto() > 0 ? linea[linea.Posto()].motivo : std::string();
}

std::string Cronologia::DaRipetere() const {
  if (!Aperta()) return {};
  const Linea& linea = Attuale().linea;
  if (AlCruciverbaSeguente()) return voci_[voce_ + 1].motivo;
  return linea.Posto() + 1 < linea.Quanti() ? linea[linea.Posto() + 1].motivo : std::string();
}

void Cronologia::Annulla() {
  if (AlCruciverbaDiPrima()) {
    --voce_;
    Mostra();
  } else if (Aperta() && Attuale().linea.Posto() > 0) {
    VaiA(Attuale().linea.Posto() - 1);
  }
}

void Cronologia::Ripeti() {
  if (AlCruciverbaSeguente()) {
    ++voce_;
    Mostra();
  } else if (Aperta() && Attuale().linea.Posto() + 1 < Attuale().linea.Quanti()) {
    VaiA(Attuale().linea.Posto() + 1);
  }
}

const Linea* Cronologia::LineaAperta() const {
  return Aperta() ? &Attuale().linea : nullptr;
}

void Cronologia::VaiA(std::size_t posto) {
  Verifica(Aperta(), "Cronologia: nessun cruciverba aperto");
  Attuale().linea.VaiA(posto);
  Mostra();
}

// The document becomes what the open line says.
void Cronologia::Mostra() {
  Voce& voce = Attuale();
  const bool diverso = DiversoDalFile(voce.linea.Attuale(), voce.file);
  documento_.Riporta({voce.linea.Attuale(), voce.file, diverso});
  Scrivi(voce, RecordDelPosto(voce.linea, diverso));
}

// --- What happens to the document ---

Passo Cronologia::NuovoPasso(const std::string& motivo) const {
  return {motivo, documento_.Valore(), orologio_()};
}

void Cronologia::Modificato(const std::string& motivo) {
  if (!Aperta()) return Sostituito(motivo);
  TogliSeguenti();
  Voce& voce = Attuale();
  const Passo passo = NuovoPasso(motivo);
  std::string record = RecordDelPasso(voce.linea.Attuale(), passo);
  if (voce.ingresso > voce.linea.Posto()) voce.ingresso = 0;  // that step goes
  const std::size_t caduti = voce.linea.Caduti();
  voce.linea.Aggiungi(passo);
  voce.ingresso -= std::min(voce.ingresso, voce.linea.Caduti() - caduti);
  Scrivi(voce, std::move(record));
}

void Cronologia::Sostituito(const std::string& motivo) {
  Lascia();
  const FileDelCruciverba& file = documento_.Stato().file;
  if (file.nome.empty()) return;
  Voce voce = NuovaVoce(motivo, file, Linea(NuovoPasso(motivo)));
  if (!DiversoDalFile(voce.linea.Attuale(), file)) voce.linea.PostoDelFile(0);
  if (file.impronta && !RiprendiDallaMemoria(voce)) RiprendiDallArchivio(voce);
  Entra(std::move(voce));
}

void Cronologia::Registrato() {
  if (!Aperta()) return;
  Voce& voce = Attuale();
  const FileDelCruciverba prima = std::exchange(voce.file, documento_.Stato().file);
  Linea& linea = voce.linea;
  if (!DiversoDalFile(linea.Attuale(), voce.file)) {
    linea.PostoDelFile(linea.Posto());
    NotaIlSalvataggio(voce);
  } else if (prima.impronta != voce.file.impronta) {
    linea.PostoDelFile(std::nullopt);
  }
  const bool stesso =
      prima.impronta.has_value() == voce.file.impronta.has_value() &&
      (!prima.impronta || ArchivioDelleCronologie::StessoCruciverba(prima.nome, voce.file.nome));
  if (!stesso) return PassaAdAltroNome(voce, prima);
  Scrivi(voce, RecordDelFile(voce.file, linea));
}

// --- The crosswords one behind the other ---

Cronologia::Voce Cronologia::NuovaVoce(const std::string& motivo, FileDelCruciverba file,
                                       Linea linea) {
  return {++numeri_, motivo, std::move(file), std::move(linea)};
}

void Cronologia::TogliSeguenti() {
  if (Aperta()) voci_.erase(voci_.begin() + static_cast<std::ptrdiff_t>(voce_) + 1, voci_.end());
}

// No crossword is open any more.
void Cronologia::Lascia() {
  TogliSeguenti();
  if (Aperta()) Attuale().uscita = Attuale().linea.Posto();
  voce_ = voci_.size();
}

void Cronologia::Entra(Voce voce) {
  voci_.push_back(std::move(voce));
  std::size_t byte = 0;
  for (const Voce& una : voci_)
    byte += una.linea.Byte();
  while (voci_.size() > 1 && (voci_.size() > MaxCruciverba || byte > Linea::MaxByte)) {
    byte -= voci_.front().linea.Byte();
    voci_.erase(voci_.begin());
  }
  voce_ = voci_.size() - 1;
}

// Whether the file of a line that is taken up stays as it is, and the line goes on in a new one: it
// holds lost work, which is to be offered until it is saved or given up.
bool Cronologia::Resta(bool perso, const Voce& voce) {
  return perso && DiversoDalFile(voce.linea.Attuale(), voce.file);
}

bool Cronologia::RiprendiDallaMemoria(Voce& voce) {
  const auto altra = std::find_if(voci_.rbegin(), voci_.rend(), [&](const Voce& una) {
    return una.file.impronta &&
           ArchivioDelleCronologie::StessoCruciverba(una.file.nome, voce.file.nome);
  });
  if (altra == voci_.rend()) return false;
  voce.linea = altra->linea;
  const bool perso = DiversoDalFile(altra->linea.Attuale(), altra->file);
  if (altra->giornale && altra->giornale->voce == altra->numero && !Resta(perso, voce)) {
    voce.giornale = altra->giornale;
    voce.giornale->voce = voce.numero;
  }
  PortaAlFile(voce, altra->file);
  return true;
}

void Cronologia::RiprendiDallArchivio(Voce& voce) {
  if (!scrittore_) return;
  scrittore_->Attendi();  // it may be one that was let go of a moment ago
  auto trovato = archivio_.Trova(voce.file.nome);
  if (!trovato) return;
  const bool perso = trovato->giornale.HaLavoroPerso();
  voce.linea = std::move(trovato->giornale.linea);
  if (!Resta(perso, voce)) {
    voce.giornale = std::make_shared<GiornaleAperto>(*scrittore_, std::move(trovato->file),
                                                     trovato->giornale.byteSani);
    voce.giornale->voce = voce.numero;
  }
  PortaAlFile(voce, trovato->giornale.file);
}

// The line of a crossword that is opened again goes to what its file holds: to the step of that, or
// to a new one. The file may have lost what only the steps knew, as clues where no word starts.
void Cronologia::PortaAlFile(Voce& voce, const FileDelCruciverba& conosciuto) {
  Linea& linea = voce.linea;
  const Cruciverba& letto = documento_.Valore();
  if (const auto posto = PassoDelFile(linea, conosciuto, voce.file, letto)) {
    linea.VaiA(*posto);
    Scrivi(voce, RecordDelPosto(linea, false));
    if (linea.Attuale() != letto) {
      std::string record = RecordDellaCorrezione(linea.Attuale(), letto);
      linea.Correggi(letto);
      Scrivi(voce, std::move(record));
    }
  } else {
    const bool noto = conosciuto.impronta == voce.file.impronta;
    const Passo passo = NuovoPasso(noto ? voce.motivo : std::string(FileCambiato));
    std::string record = RecordDelPasso(linea.Attuale(), passo);
    linea.Aggiungi(passo);
    Scrivi(voce, std::move(record));
  }
  linea.PostoDelFile(linea.Posto());
  voce.ingresso = linea.Posto();
  Scrivi(voce, RecordDelFile(voce.file, linea));
}

// --- Recovery ---

bool Cronologia::Recupera(const LavoroPerso& lavoro) {
  if (!scrittore_) return false;
  scrittore_->Attendi();
  auto trovato = ArchivioDelleCronologie::Apri(lavoro.giornale);
  if (!trovato) return false;
  Lascia();
  Giornale& giornale = trovato->giornale;
  Voce voce =
      NuovaVoce(std::string(MotivoRecupero), std::move(giornale.file), std::move(giornale.linea));
  voce.ingresso = voce.linea.Posto();
  voce.giornale =
      std::make_shared<GiornaleAperto>(*scrittore_, std::move(trovato->file), giornale.byteSani);
  voce.giornale->voce = voce.numero;
  Entra(std::move(voce));
  documento_.Riporta({Attuale().linea.Attuale(), Attuale().file, true});
  return true;
}

void Cronologia::Attendi() {
  if (scrittore_) scrittore_->Attendi();
}

std::string Cronologia::Guasto() {
  if (Aperta() && Attuale().giornale) {
    if (const auto errore = Attuale().giornale->Guasto()) guasto_ = errore;
  }
  if (!guasto_ || std::exchange(guastoDetto_, true)) return {};
  return ConCausa(MessaggioGuasto, archivio_.Cartella(), guasto_);
}

// Called when the line is as the record makes it.
void Cronologia::Scrivi(Voce& voce, std::string record) {
  if (!scrittore_) return;
  GiornaleAperto* const giornale = voce.giornale.get();
  if (giornale) {
    if (const auto errore = giornale->Guasto()) guasto_ = errore;
    if (giornale->voce == voce.numero && !giornale->Guasto() && !giornale->TroppoLungo())
      return giornale->Aggiungi(std::move(record));
  }
  RinnovaGiornale(voce);
}

// Begins a new file with the whole line, in place of the one that there is. A crossword that was
// only opened needs none.
void Cronologia::RinnovaGiornale(Voce& voce) {
  if (!scrittore_ || voce.linea.Quanti() == 1) return;
  const auto adesso = orologio_();
  if (guasto_ && adesso - tentativo_ < TraDueTentativi) return;
  tentativo_ = adesso;
  auto file = archivio_.Crea(voce.file.impronta ? voce.file.nome : Percorso(), guasto_);
  if (!file) return;
  const std::string inizio = InizioDelGiornale(voce.file, voce.linea);
  guasto_ = file->Aggiungi(inizio);
  if (guasto_) {
    file->Elimina();
    return;
  }
  guastoDetto_ = false;
  auto nuovo = std::make_shared<GiornaleAperto>(*scrittore_, std::move(*file), inizio.size());
  nuovo->Aggiungi({});  // so that it comes to the disk
  nuovo->voce = voce.numero;
  if (voce.giornale && voce.giornale->voce == voce.numero) voce.giornale->LasciaIlPostoA(*nuovo);
  voce.giornale = std::move(nuovo);
}

// What the file holds now is lost nowhere, neither where it was left in this run nor before.
void Cronologia::NotaIlSalvataggio(const Voce& voce) {
  if (!scrittore_ || !voce.file.impronta) return;
  for (const Voce& una : voci_) {
    if (una.numero != voce.numero && una.giornale && una.giornale->voce == una.numero &&
        ArchivioDelleCronologie::StessoCruciverba(una.file.nome, voce.file.nome) &&
        !DiversoDalFile(una.linea.Attuale(), voce.file))
      una.giornale->Aggiungi(RecordDellaRinuncia());
  }
  archivio_.Salvato(voce.file);
}

// The line goes on under the new name. The file of the old one, if there is one, keeps its steps,
// and nothing in them is unsaved any more.
void Cronologia::PassaAdAltroNome(Voce& voce, const FileDelCruciverba& prima) {
  const auto vecchio = std::exchange(voce.giornale, nullptr);
  RinnovaGiornale(voce);
  if (!voce.giornale) {
    voce.giornale = vecchio;
    if (vecchio) Scrivi(voce, RecordDelFile(voce.file, voce.linea));
  } else if (vecchio && !prima.impronta) {
    vecchio->LasciaIlPostoA(*voce.giornale);
  } else if (vecchio && vecchio->voce == voce.numero) {
    vecchio->Aggiungi(RecordDellaRinuncia());
  }
}

}  // namespace telarium
