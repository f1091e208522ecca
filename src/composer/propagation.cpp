#include <algorithm>
#include <bit>

#include "composer/block_kernels.h"
#include "composer/state.h"
#include "platform/check.h"

// What follows from a change: slots are revised one after the other until nothing changes any more.
namespace telarium {
namespace {

// A block in which two sets have a word in common, `blocchi` for none. Blocks before `residuo` come
// last: most of them were looked at when it was found.
std::size_t ComuneDopo(const Blocco* uno, const Blocco* altro, std::size_t residuo,
                       std::size_t blocchi) {
  const std::size_t dopo = nuclei::PrimoComune(uno, altro, residuo + 1, blocchi);
  if (dopo < blocchi) return dopo;
  const std::size_t prima = nuclei::PrimoComune(uno, altro, 0, residuo);
  return prima < residuo ? prima : blocchi;
}

}  // namespace

void Stato::Accoda(int slot) {
  if (inCoda_[S(slot)]) return;
  inCoda_[S(slot)] = 1;
  (slot_[S(slot)].dominio.elenco ? coda_ : codaLunga_).push_back(slot);
}

bool Stato::Urta(int slot, const Blocco* perche, const Blocco* anche) {
  urto_.slot = slot;
  urto_.ragione.assign(perche, perche + blocchiRagione_);
  if (anche) Unisci(urto_.ragione.data(), anche);
  SvuotaCode();
  return false;
}

void Stato::SvuotaCode() {
  for (const int accodato : coda_)
    inCoda_[S(accodato)] = 0;
  for (const int accodato : codaLunga_)
    inCoda_[S(accodato)] = 0;
  coda_.clear();
  codaLunga_.clear();
  testa_ = testaLunga_ = 0;
}

bool Stato::Propaga() {
  for (;;) {
    int slot = -1;
    if (testa_ < coda_.size()) {
      slot = coda_[testa_++];
    } else if (testaLunga_ < codaLunga_.size()) {
      slot = codaLunga_[testaLunga_++];
    } else {
      break;
    }
    inCoda_[S(slot)] = 0;
    if (!Rivedi(slot)) return false;
  }
  SvuotaCode();
  VerificaStato();
  return true;
}

// --- Revision of a slot ---

bool Stato::Rivedi(int slot, int tolta) {
  const Dominio prima = DominioDi(slot);
  if (prima.conta == 0) return Urta(slot, slot_[S(slot)].ragione);
  if (Posato(slot) || (tolta < 0 && !DaRivedere(slot))) return true;
  StatoSlot& stato = PrendiSlot(slot);
  RaccogliCambi(slot, stato);
  revisione_.Comincia(Griglia().Lunghezza(slot), prima, cambi_);
  TogliEscluse(slot, stato);
  TogliGenie(slot, stato);
  if (tolta >= 0) revisione_.Togli(tolta);
  const int conta = revisione_.Conta();
  if (conta == 0) return Urta(slot, stato.ragione);
  const bool primaVolta = stato.bolloParole == BolloBase;
  if (conta == prima.conta && !primaVolta) return true;
  stato.dominio = revisione_.Conserva(memoria_, prima, stato.bolloParole == bollo_, conta);
  stato.bolloParole = bollo_;
  if (!primaVolta && BastanoLeLettere(stato)) return true;
  stato.sostenute = conta;
  if (!Sostieni(slot, stato)) return false;
  return conta > 1 || Di().slot[S(slot)].aperto || Posa(slot, stato);
}

bool Stato::DaRivedere(int slot) const {
  const StatoSlot& stato = slot_[S(slot)];
  if (stato.bolloParole == BolloBase) return true;
  if ((esaurite_ & ~stato.genie) != 0) return true;
  const int lunghezza = Griglia().Lunghezza(slot);
  if (S(stato.escluse) < esclusioni_[S(lunghezza)].size()) return true;
  const auto caselle = Griglia().CaselleDi(slot);
  for (std::size_t posto = 0; posto < caselle.size(); ++posto) {
    if (caselle_[S(caselle[posto])].lettere != stato.viste[posto]) return true;
  }
  return false;
}

// Whether so few of many words have gone that the letters will hardly be fewer.
bool Stato::BastanoLeLettere(const StatoSlot& stato) {
  return stato.dominio.blocchi && stato.dominio.conta > stato.sostenute / 10 * 9;
}

void Stato::RaccogliCambi(int slot, StatoSlot& stato) {
  const auto caselle = Griglia().CaselleDi(slot);
  cambi_.clear();
  for (int posto = 0; posto < static_cast<int>(caselle.size()); ++posto) {
    const StatoCasella& casella = caselle_[S(caselle[S(posto)])];
    if (casella.lettere == stato.viste[posto]) continue;
    cambi_.push_back({posto, stato.viste[posto] & ~casella.lettere, casella.lettere});
    Unisci(stato.ragione, casella.ragione);
    stato.viste[posto] = casella.lettere;
  }
}

void Stato::TogliEscluse(int slot, StatoSlot& stato) {
  const auto& esclusioni = esclusioni_[S(Griglia().Lunghezza(slot))];
  for (; S(stato.escluse) < esclusioni.size(); ++stato.escluse) {
    const Esclusione& esclusione = esclusioni[S(stato.escluse)];
    if (esclusione.slot != slot && revisione_.Togli(esclusione.numero))
      Unisci(stato.ragione, slot_[S(esclusione.slot)].ragione);
  }
}

void Stato::TogliGenie(int slot, StatoSlot& stato) {
  const auto nuove = static_cast<Genie>(esaurite_ & ~stato.genie);
  if (nuove == 0) return;
  stato.genie |= nuove;
  for (int genia = 0; genia < NumGenie; ++genia) {
    if ((nuove >> genia & 1) == 0) continue;
    revisione_.Togli(
        Parole().DellaGenia(Griglia().Lunghezza(slot), static_cast<Genia>(genia)).data());
  }
  for (const auto& [genie, posato] : posatiDiGenia_) {
    if ((genie & nuove) != 0) Unisci(stato.ragione, slot_[S(posato)].ragione);
  }
}

// Leaves each cell of a slot the letters that a word has there.
bool Stato::Sostieni(int slot, StatoSlot& stato) {
  const int lunghezza = Griglia().Lunghezza(slot);
  const auto caselle = Griglia().CaselleDi(slot);
  const bool elencato = stato.dominio.elenco != nullptr;
  if (elencato) UnisciLettere(Parole(), lunghezza, stato.dominio, unione_);
  for (int posto = 0; posto < lunghezza; ++posto) {
    const int casella = caselle[S(posto)];
    const Lettere sostenute =
        elencato ? unione_[S(posto)] : LettereSostenute(slot, posto, LettereDi(casella));
    if (!Riduci(casella, sostenute, slot)) return false;
    stato.viste[posto] = LettereDi(casella);
  }
  return true;
}

Lettere Stato::LettereSostenute(int slot, int posto, Lettere chieste) {
  // Only crossings want to know; a fixed letter is in each word that is left.
  if (UnaSola(chieste) || Griglia().IncrociDi(slot)[S(posto)].slot < 0) return chieste;
  const int lunghezza = Griglia().Lunghezza(slot);
  const auto blocchi = S(Parole().Blocchi(lunghezza));
  const Blocco* dominio = slot_[S(slot)].dominio.blocchi;
  const Blocco* insiemi = Parole().Insieme(lunghezza, posto, 0);
  std::uint16_t* residui = residui_.data() + S(primoPosto_[S(slot)] + posto) * LettereAlfabeto;
  Lettere sostenute = chieste;
  for (Lettere resto = chieste; resto != 0; resto &= resto - 1) {
    const auto lettera = S(std::countr_zero(resto));
    const Blocco* insieme = insiemi + lettera * blocchi;
    const std::size_t residuo = residui[lettera];
    if ((dominio[residuo] & insieme[residuo]) != 0) continue;
    const std::size_t trovato = ComuneDopo(dominio, insieme, residuo, blocchi);
    if (trovato == blocchi) {
      sostenute &= ~(1u << lettera);
    } else {
      residui[lettera] = static_cast<std::uint16_t>(trovato);
    }
  }
  return sostenute;
}

bool Stato::Riduci(int casella, Lettere lettere, int slot) {
  if ((caselle_[S(casella)].lettere & ~lettere) == 0) return true;
  StatoCasella& stato = PrendiCasella(casella);
  Unisci(stato.ragione, slot_[S(slot)].ragione);
  stato.lettere &= lettere;
  for (const PostoDiSlot& posto : Griglia().SlotDi(casella)) {
    if (posto.slot >= 0 && posto.slot != slot) Accoda(posto.slot);
  }
  return stato.lettere != 0 || Urta(slot, stato.ragione);
}

// --- Words that are placed ---

bool Stato::Posa(int slot, StatoSlot& stato) {
  stato.posato = true;
  ++posati_;
  const NumeroParola parola = {Griglia().Lunghezza(slot), stato.dominio.elenco[0]};
  Escludi(parola, slot);
  if (!Di().ammetteForme && Parole().HaParentele()) {
    for (const NumeroParola parente : parenti_.Di(parola))
      Escludi(parente, slot);
  }
  return ContaGenie(slot, Parole().GenieDi(parola));
}

void Stato::Escludi(NumeroParola parola, int slot) {
  esclusioni_[S(parola.lunghezza)].push_back({parola.numero, slot});
  esclusioniScritte_.push_back(parola.lunghezza);
  for (const int altro : Griglia().DiLunghezza(parola.lunghezza)) {
    const StatoSlot& stato = slot_[S(altro)];
    if (altro != slot && !stato.posato && stato.dominio.elenco) Accoda(altro);
  }
}

bool Stato::ContaGenie(int slot, Genie genie) {
  Genie limitate = 0;
  for (int genia = 0; genia < NumGenie; ++genia) {
    if ((genie >> genia & 1) != 0 && Di().alMassimo[S(genia)] != SenzaLimite)
      limitate |= SolaGenia(static_cast<Genia>(genia));
  }
  if (limitate == 0) return true;
  posatiDiGenia_.emplace_back(limitate, slot);
  for (int genia = 0; genia < NumGenie; ++genia) {
    if ((limitate >> genia & 1) == 0) continue;
    const int quante = ++conteggi_[S(genia)];
    if (quante > Di().alMassimo[S(genia)]) return UrtaPerGenia(slot, genia);
    if (quante == Di().alMassimo[S(genia)]) Esaurisci(genia);
  }
  return true;
}

void Stato::Esaurisci(int genia) {
  esaurite_ |= SolaGenia(static_cast<Genia>(genia));
  for (int altro = 0; altro < Griglia().Slot(); ++altro) {
    if (!slot_[S(altro)].posato) Accoda(altro);
  }
}

bool Stato::UrtaPerGenia(int slot, int genia) {
  Ragione ragione(blocchiRagione_, 0);
  for (const auto& [genie, posato] : posatiDiGenia_) {
    if ((genie >> genia & 1) != 0) Unisci(ragione.data(), slot_[S(posato)].ragione);
  }
  return Urta(slot, ragione.data());
}

#ifdef TELARIUM_INVARIANTS
void Stato::VerificaSlot(int slot) const {
  const StatoSlot& stato = slot_[S(slot)];
  const Dominio& dominio = stato.dominio;
  const int lunghezza = Griglia().Lunghezza(slot);
  std::vector<int> parole;
  dominio.Prime(dominio.conta, parole);
  Verifica(static_cast<int>(parole.size()) == dominio.conta && dominio.conta > 0, "parole contate");
  Verifica(stato.posato || dominio.conta > 1 || Di().slot[S(slot)].aperto, "parola posata");
  for (const int numero : parole) {
    const std::string_view parola = Parole().Parola({lunghezza, numero});
    for (std::size_t posto = 0; posto < parola.size(); ++posto) {
      Verifica((LettereDi(Griglia().CaselleDi(slot)[posto]) & SolaLettera(parola[posto])) != 0,
               "lettera della parola nella casella");
    }
  }
}

void Stato::VerificaStato() const {
  int posati = 0;
  for (int slot = 0; slot < Griglia().Slot(); ++slot) {
    // Sets of blocks are too many words to be gone through each time.
    if (DominioDi(slot).elenco) VerificaSlot(slot);
    posati += Posato(slot) ? 1 : 0;
  }
  Verifica(posati == posati_, "parole posate");
}
#else
void Stato::VerificaStato() const {}
#endif

}  // namespace telarium
