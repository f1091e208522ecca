#include <algorithm>
#include <charconv>
#include <limits>
#include <random>
#include <thread>

#include "laboratory/composing.h"
#include "model/documento.h"
#include "platform/codepage.h"
#include "platform/platform.h"
#include "platform/text.h"
#include "telar/command.h"
#include "telar/demand_options.h"
#include "telar/files.h"
#include "telar/option_values.h"
#include "telar/output.h"
#include "telar/watch.h"
#include "telar/word_options.h"

// The complete fill of a crossword.
namespace telarium::telar {
namespace {

using Istante = Sorveglianza::Istante;

constexpr Opzione OpzioneSeme = {"--seme", "N", "il seme del caso (estratto)"};
constexpr Opzione OpzioneOttimizza = {"--ottimizza", "N",
                                      "quanto migliorare: migliaia di ritocchi (5)"};
constexpr Opzione OpzioneOttimo = {"--ottimo", "",
                                   "prima il più alto punteggio minimo possibile, con la prova"};
constexpr Opzione OpzionePassi = {"--passi", "N", "rinuncia dopo N passi (100000000)"};
constexpr Opzione OpzioneSecondi = {"--secondi", "S", "rinuncia dopo S secondi (20)"};
constexpr Opzione OpzioneLavoratori = {"--lavoratori", "N", "quanti lavorano insieme (i nuclei)"};
constexpr Opzione OpzioneProposte = {
    "--proposte", "K", "K riempimenti diversi: USCITA con -1, -2 ... prima dell'estensione"};
constexpr Opzione OpzioneParziale = {"--parziale", "",
                                     "senza riempimento scrive il più che si è trovato"};

constexpr std::int64_t SemeMassimo = 999'999'999;  // of drawn ones: short to type again
constexpr std::int64_t MaxLavoratori = 64;

std::uint64_t LeggiSeme(const Argomenti& argomenti) {
  if (argomenti.Ha(OpzioneSeme.nome))
    return static_cast<std::uint64_t>(argomenti.Numero(OpzioneSeme.nome, 0, 0));
  std::random_device caso;
  return std::uniform_int_distribution<std::uint64_t>(1, SemeMassimo)(caso);
}

int LeggiLavoratori(const Argomenti& argomenti) {
  const std::int64_t nuclei = std::max(1u, std::thread::hardware_concurrency());
  return static_cast<int>(
      std::min(argomenti.Numero(OpzioneLavoratori.nome, 1, nuclei), MaxLavoratori));
}

int LeggiProposte(const Argomenti& argomenti) {
  return static_cast<int>(std::min<std::int64_t>(argomenti.Numero(OpzioneProposte.nome, 1, 1),
                                                 std::numeric_limits<int>::max()));
}

RichiestaComposizione LeggiRichiesta(const Argomenti& argomenti) {
  constexpr std::int64_t migliaia = 1000;
  const std::int64_t finestre =
      std::min(
          argomenti.Numero(OpzioneOttimizza.nome, 0, RichiestaComposizione().finestre / migliaia),
          std::numeric_limits<std::int64_t>::max() / migliaia) *
      migliaia;
  return {.finestre = finestre,
          .soglia = argomenti.Ha(OpzioneOttimo.nome),
          .proposte = LeggiProposte(argomenti)};
}

std::string ConMillesimi(std::chrono::nanoseconds durata) {
  std::array<char, 32> cifre;
  const double secondi = std::chrono::duration<double>(durata).count();
  const auto esito = std::to_chars(cifre.data(), cifre.data() + cifre.size(), secondi,
                                   std::chars_format::fixed, 3);
  return {cifre.data(), esito.ptr};
}

void StampaIntero(std::string_view nome, std::uint64_t numero) {
  StampaCampi({nome, std::to_string(numero)});
}

std::string_view NomeDi(Esito esito) {
  switch (esito) {
    case Esito::Riempito:
      return "riempito";
    case Esito::Impossibile:
      return "impossibile";
    default:
      return "tempo";
  }
}

// "out.tlrm" as "out-1.tlrm".
std::string ConNumero(const Percorso& uscita, std::size_t numero) {
  return uscita.parent_path() /
         Unisci(uscita.stem().string(), '-', numero, uscita.extension().string());
}

// Why the wanted words for which there is no place have none.
void AvvisaVolute(const Composizione& composizione, const std::vector<std::string>& volute) {
  if (volute.empty()) return;
  std::string perche = TroppeVolute(composizione);
  if (perche.empty()) {
    for (const std::string& parola : volute)
      perche += Unisci(perche.empty() ? "Parole volute che non trovano posto: " : ", ", parola);
    perche += '.';
  }
  Avvisa(perche);
}

void StampaRimedio(const Rimedio& rimedio) {
  const auto stampaCasella = [&](std::string_view nome) {
    const auto [colonna, riga] = rimedio.casella;
    StampaCampi({"rimedio", nome, std::to_string(colonna), std::to_string(riga)});
  };
  switch (rimedio.genere) {
    case GenereRimedio::Libera:
      return stampaCasella("libera");
    case GenereRimedio::Nera:
      return stampaCasella("nera");
    case GenereRimedio::Livello:
      return StampaCampi({"rimedio", "livello", std::to_string(rimedio.livello)});
    case GenereRimedio::Regole:
      return StampaCampi({"rimedio", "regole", rimedio.nome});
    case GenereRimedio::Lessico:
      return StampaCampi({"rimedio", "lessico", rimedio.nome});
  }
}

// One run of the command.
class Esecuzione {
 public:
  Esecuzione(const Argomenti& argomenti, const UtenteConsole& utente)
      : richiesta_(LeggiRichiesta(argomenti)),
        uscita_(argomenti.liberi[1]),
        numerate_(argomenti.Ha(OpzioneProposte.nome)),
        parziale_(argomenti.Ha(OpzioneParziale.nome)),
        sorveglianza_(utente,
                      inizio_ + Secondi(argomenti, OpzioneSecondi, std::chrono::seconds(20))) {
    limiti_.seme = LeggiSeme(argomenti);
    limiti_.passi = argomenti.Numero(OpzionePassi.nome, 0, limiti_.passi);
    limiti_.lavoratori = LeggiLavoratori(argomenti);
    limiti_.ferma = sorveglianza_.Segnale();
  }

  // False when there is nothing to compose, which has been told.
  bool Prepara(const SceltaComposizione& scelta) {
    scelta_ = scelta;
    lessico_ = PreparaLessico(scelta_.parole);
    if (!lessico_) return false;
    copertura_ = PreparaCopertura(limiti_.ferma);
    const bool vuoleDefinizioni = scelta_.parole.definizioni == UsoDefinizioni::Obbligatorie;
    if (!copertura_ && vuoleDefinizioni && !sorveglianza_.Fermata()) return false;
    std::string messaggio;
    composizione_ = PreparaComposizione(IlDocumento().Valore(), scelta_, *lessico_,
                                        copertura_.get(), messaggio);
    if (!messaggio.empty()) Avvisa(messaggio);
    return composizione_.has_value();
  }

  Stato Componi() {
    const RisultatoComposizione risultato =
        ComponiCruciverba(*composizione_, Fonti(), richiesta_, limiti_);
    switch (risultato.esito) {
      case Esito::Riempito:
        return Consegna(risultato) ? Stato::Fatto : Stato::Fallito;
      case Esito::Impossibile:
        if (!ConsegnaParziale(risultato)) return Stato::Fallito;
        Avvisa("Con queste parole e queste richieste lo schema non si può riempire."_cp);
        AvvisaVolute(*composizione_, risultato.volute);
        return Stato::Negativo;
      default:
        if (!ConsegnaParziale(risultato)) return Stato::Fallito;
        Avvisa(Unisci("Interrotto prima di una risposta: ", PercheFermo(), '.'));
        return Stato::Interrotto;
    }
  }

 private:
  FontiComposizione Fonti() const {
    return {scelta_, *lessico_, copertura_.get(), LuoghiDeiLessici()};
  }

  std::string_view PercheFermo() const {
    if (!sorveglianza_.Fermata()) return "i passi sono finiti";
    return sorveglianza_.DaChiUsa() ? "richiesta di fermarsi" : "il tempo è scaduto"_cp;
  }

  // Writes and prints all fills. False when one cannot be written: then nothing is printed.
  bool Consegna(const RisultatoComposizione& risultato) const {
    std::vector<Cruciverba> composti;
    for (const Proposta& proposta : risultato.proposte)
      composti.push_back(ConLettere(*composizione_, proposta.lettere));
    for (std::size_t i = 0; i < composti.size(); ++i) {
      if (!ScriviComposto(composti[i], i)) return false;
    }
    for (std::size_t i = 0; i < composti.size(); ++i) {
      if (i > 0) std::fputc('\n', stdout);
      StampaProposta(risultato, risultato.proposte[i], composti[i]);
    }
    if (const auto trovate = static_cast<int>(composti.size()); trovate < richiesta_.proposte)
      Avvisa(Unisci("Proposte trovate: ", trovate, " su ", richiesta_.proposte, '.'));
    return true;
  }

  // The same of what there is without a fill.
  bool ConsegnaParziale(const RisultatoComposizione& risultato) const {
    if (parziale_ && !ScriviComposto(ConLettere(*composizione_, risultato.lettere), 0))
      return false;
    StampaEsito(risultato.esito);
    StampaColpevoli(risultato);
    for (const Rimedio& rimedio : risultato.rimedi)
      StampaRimedio(rimedio);
    StampaIntero("passi", static_cast<std::uint64_t>(risultato.passi));
    StampaDurata("in tutto", std::chrono::steady_clock::now());
    return true;
  }

  // Of several proposals each has a file of its own, by its number.
  bool ScriviComposto(const Cruciverba& composto, std::size_t numero) const {
    return Scrivi(composto, numerate_ ? ConNumero(uscita_, numero + 1) : uscita_) == Stato::Fatto;
  }

  void StampaEsito(Esito esito) const {
    StampaCampi({"esito", NomeDi(esito)});
    StampaIntero("seme", limiti_.seme);
  }

  void StampaDurata(std::string_view nome, Istante fine) const {
    StampaCampi({nome, ConMillesimi(fine - inizio_)});
  }

  void StampaProposta(const RisultatoComposizione& risultato, const Proposta& proposta,
                      const Cruciverba& composto) const {
    const CifreRiempimento cifre = CifreDi(*composizione_, composto, Fonti());
    StampaEsito(risultato.esito);
    StampaIntero("voci", static_cast<std::uint64_t>(cifre.voci));
    StampaCampi({"punteggio", cifre.media, cifre.minimo});
    if (risultato.soglia) StampaSoglia(*risultato.soglia, cifre);
    StampaIntero("definite", static_cast<std::uint64_t>(cifre.definite));
    StampaIntero("passi", static_cast<std::uint64_t>(proposta.passi));
    StampaDurata("primo", proposta.primo);
    StampaDurata("in tutto", std::chrono::steady_clock::now());
    if (proposta.interrotta) StampaCampi({"interrotto"});
  }

  // Where no score counts there is no lowest one.
  void StampaSoglia(const SogliaTrovata& soglia, const CifreRiempimento& cifre) const {
    const bool conta = !cifre.minimo.empty();
    StampaCampi({"provato", conta ? std::to_string(soglia.fino) : "",
                 conta && soglia.oltre ? std::to_string(*soglia.oltre) : ""});
  }

  void StampaColpevoli(const RisultatoComposizione& risultato) const {
    for (const Slot& slot : risultato.colpevoli) {
      const auto [colonna, riga] = slot.inizio;
      StampaCampi({"colpevole", std::to_string(composizione_->griglia.Numero(slot.inizio)),
                   Sigla(slot.direzione), std::to_string(colonna), std::to_string(riga),
                   std::to_string(slot.lunghezza), LettereChieste(*composizione_, slot)});
    }
  }

  const Istante inizio_ = std::chrono::steady_clock::now();
  const RichiestaComposizione richiesta_;
  Limiti limiti_;
  const std::string uscita_;
  const bool numerate_;
  const bool parziale_;
  const Sorveglianza sorveglianza_;
  SceltaComposizione scelta_;
  std::optional<Lessico> lessico_;  // the next ones refer to it
  std::shared_ptr<const Copertura> copertura_;
  std::optional<Composizione> composizione_;
};

Stato ComponiFile(const Argomenti& argomenti, PiattaformaConsole& piattaforma) {
  Esecuzione esecuzione(argomenti, piattaforma.ChiUsa());
  const auto scelta = LeggiSceltaComposizione(argomenti);
  if (!scelta || !Apri(argomenti.liberi[0]) || !esecuzione.Prepara(*scelta)) return Stato::Fallito;
  return esecuzione.Componi();
}

std::vector<Opzione> OpzioniComponi() {
  std::vector<Opzione> opzioni = OpzioniDomanda();
  opzioni.insert(opzioni.end(),
                 {OpzioneSeme, OpzioneOttimizza, OpzioneOttimo, OpzionePassi, OpzioneSecondi,
                  OpzioneLavoratori, OpzioneProposte, OpzioneParziale});
  return ConOpzioniParole(std::move(opzioni));
}

}  // namespace

std::vector<Comando> ComandiComposizione() {
  return {
      {"componi", "FILE USCITA", "", 2, 2, OpzioniComponi(),
       "Riempie tutto lo schema con parole del lessico, o dice perché non si può.", ComponiFile,
       true, Stato::Interrotto},
  };
}

}  // namespace telarium::telar
