#include "lexicon/own_words.h"

#include <algorithm>

#include "platform/codepage.h"
#include "platform/text.h"

namespace telarium {
namespace {

/// Far more than anybody writes by hand or imports.
constexpr std::size_t MaxByte = 64u << 20;
constexpr char Separatore = ';';
constexpr std::string_view SegnoUtf8 = "\xEF\xBB\xBF";

// Goes through a text by lines that keep their ends.
std::vector<std::string_view> RigheIntere(std::string_view testo) {
  std::vector<std::string_view> intere;
  LettoreDiRighe righe(testo);
  std::string_view riga;
  while (righe.Prossima(riga)) {
    intere.push_back(testo.substr(0, testo.size() - righe.Resto().size()));
    testo = righe.Resto();
  }
  return intere;
}

std::string_view SenzaFine(std::string_view riga) {
  return riga.substr(0, std::min(riga.find_first_of("\r\n"), riga.size()));
}

}  // namespace

std::optional<ParoleMie> ParoleMie::Leggi(const Percorso& cartella, std::string& causa) {
  const Percorso file = PercorsoNellaCartella(cartella, NomeFile);
  std::string contenuto;
  std::error_code errore;
  const EsitoLettura esito = LeggiFile(file, MaxByte, contenuto, errore);
  if (esito == EsitoLettura::Assente) return ParoleMie();
  constexpr std::string_view messaggio = "L'elenco delle parole proprie non si può leggere."_cp;
  if (esito == EsitoLettura::TroppoGrande) {
    causa = ConCausa(messaggio, file, "è troppo grande"_cp);
  } else if (esito != EsitoLettura::Letto) {
    causa = ConCausa(messaggio, file, errore);
  } else if (InUtf16(contenuto)) {
    causa = ConCausa(messaggio, file, "è in UTF-16, o non è un testo: va salvato in UTF-8"_cp);
  } else {
    return Interpreta(contenuto);
  }
  return std::nullopt;
}

ParoleMie ParoleMie::Interpreta(std::string_view testo) {
  ParoleMie mie;
  const std::string_view senzaSegno = SenzaSegnoUtf8(testo);
  mie.conSegno_ = senzaSegno.size() < testo.size();
  mie.codifica_ = mie.conSegno_ ? Codifica::Utf8 : CodificaDi(senzaSegno);
  for (const std::string_view riga : RigheIntere(senzaSegno))
    mie.righe_.push_back(mie.Leggi(riga));
  if (!mie.righe_.empty()) {
    const std::string_view prima = mie.righe_.front().testo;
    const std::string_view fine = prima.substr(SenzaFine(prima).size());
    if (!fine.empty()) mie.fineRiga_ = fine;
  }
  return mie;
}

ParoleMie::Riga ParoleMie::Leggi(std::string_view testo) const {
  Riga riga;
  riga.testo = testo;
  std::string_view resto = SenzaFine(testo);
  if (RigaVuota(resto)) return riga;
  const std::string_view grafia = StaccaCampo(resto, Separatore);
  const std::string_view campo = StaccaCampo(resto, Separatore);
  const auto parola = PiegaGrafia(grafia, codifica_);
  const auto punteggio = InterpretaPunteggio(campo);
  if (!parola || (!campo.empty() && !punteggio)) return riga;
  riga.parola = *parola;
  riga.grafia = GrafiaNellaCodePage(grafia, codifica_);
  riga.punteggio = punteggio.value_or(ElencoParole::SenzaPunteggio);
  return riga;
}

std::error_code ParoleMie::Scrivi(const Percorso& cartella) const {
  return ScriviFile(PercorsoNellaCartella(cartella, NomeFile), Testo());
}

std::string ParoleMie::Testo() const {
  std::string testo(conSegno_ ? SegnoUtf8 : std::string_view());
  for (const Riga& riga : righe_)
    testo += riga.testo;
  return testo;
}

bool ParoleMie::Imposta(std::string_view grafia, int punteggio) {
  auto parola = PiegaGrafia(grafia, Codifica::CodePage);
  if (!parola) return false;
  const auto trovata = std::ranges::find(righe_.rbegin(), righe_.rend(), *parola, &Riga::parola);
  if (trovata != righe_.rend()) {
    *trovata = Componi(grafia, std::move(*parola), punteggio);
    return true;
  }
  // A last line without an end gets one.
  if (!righe_.empty() && SenzaFine(righe_.back().testo).size() == righe_.back().testo.size())
    righe_.back().testo += fineRiga_;
  righe_.push_back(Componi(grafia, std::move(*parola), punteggio));
  return true;
}

ParoleMie::Riga ParoleMie::Componi(std::string_view grafia, std::string parola,
                                   int punteggio) const {
  Riga riga;
  riga.testo = codifica_ == Codifica::Utf8 ? AUtf8(grafia) : std::string(grafia);
  if (punteggio != ElencoParole::SenzaPunteggio) riga.testo += Unisci(Separatore, punteggio);
  riga.testo += fineRiga_;
  riga.parola = std::move(parola);
  riga.grafia = grafia;
  riga.punteggio = punteggio;
  return riga;
}

bool ParoleMie::Togli(std::string_view parola) {
  const auto tolta = [&](const Riga& riga) {
    return !riga.parola.empty() && riga.parola == parola;
  };
  return std::erase_if(righe_, tolta) > 0;
}

ParoleMie::Ignorate ParoleMie::RigheIgnorate() const {
  Ignorate ignorate;
  for (std::size_t i = 0; i < righe_.size(); ++i) {
    if (!righe_[i].parola.empty() || RigaVuota(SenzaFine(righe_[i].testo))) continue;
    if (ignorate.quante++ == 0) ignorate.prima = static_cast<std::int64_t>(i) + 1;
  }
  return ignorate;
}

ElencoParole ParoleMie::Elenco() const {
  ElencoParole elenco;
  for (const Riga& riga : righe_) {
    if (!riga.parola.empty()) elenco.Metti(riga.parola, riga.grafia, riga.punteggio);
  }
  return elenco;
}

InsiemeDiParole ParoleMie::Vietate() const {
  const ElencoParole elenco = Elenco();
  InsiemeDiParole vietate;
  for (std::size_t i = 0; i < elenco.Quante(); ++i) {
    if (elenco[i].punteggio == 0) vietate.emplace(elenco[i].parola);
  }
  return vietate;
}

}  // namespace telarium
