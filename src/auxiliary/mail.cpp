#include "auxiliary/mail.h"

#include <fstream>

#include "auxiliary/addresses.h"
#include "auxiliary/guide.h"
#include "model/state.h"
#include "platform/codepage.h"
#include "platform/platform.h"
#include "platform/text.h"

namespace telarium {
namespace {

constexpr std::string_view Saluti = "Cordiali saluti";

// Whether it is an address at all: the mail program knows better which ones there are.
bool CasellaValida(std::string_view indirizzo) {
  return indirizzo.find('@') != std::string_view::npos;
}

bool SiPuoAllegare(const Percorso& file) {
  return FileOrdinario(file) && std::ifstream(file).is_open();
}

// Why a mail cannot be handed on; empty when the mail program has taken it.
std::string Consegna(const Mail& mail) {
  if (!CasellaValida(mail.destinatario)) return "Casella postale non valida";
  if (mail.allegato && !SiPuoAllegare(*mail.allegato)) {
    return Unisci("Non è possibile allegare il file \""_cp, TestoPercorso(*mail.allegato),
                  "\": il file non esiste o non si può leggere."_cp);
  }
  if (Sistema().PreparaMail(mail)) return {};
  return std::string(
      "Non è possibile preparare il messaggio: manca un programma di posta adatto, oppure il "
      "programma non lo ha accettato."_cp);
}

// As Consegna; true when nothing speaks against it, else it has been told.
bool Spedisci(const Mail& mail) {
  const std::string errore = Consegna(mail);
  if (!errore.empty()) Avvisa(errore, {}, Icona::Avviso);
  return errore.empty();
}

}  // namespace

void MandaSchema() {
  if (NomeCruciverba.empty()) return Avvisa("Non c'è alcun cruciverba aperto da spedire."_cp);
  if (NomeCruciverba == NomeMaiSalvato) {
    Avvisa("Il cruciverba non è ancora stato salvato: salvalo, poi potrai spedirlo."_cp, {},
           Icona::Avviso);
    return;
  }
  if (!Spedisci({.destinatario = ValoreIndirizzo(Indirizzo::MailSchemi),
                 .oggetto = "Telarium - Invio schema " + TestoPercorso(NomeCruciverba),
                 .testo = Unisci("Salve, in allegato spedisco il file di cruciverba da me creato. "
                                 "Resto in attesa di riceverne eventualmente altri realizzati da "
                                 "altri utilizzatori.\r\n",
                                 Saluti),
                 .allegato = NomeCruciverba}))
    return;
  ImpostaPuntatoreMouse(PuntatoreFreccia);
  Avvisa(
      "Un messaggio con il tuo schema di cruciverba allegato e' stato accodato per la spedizione "
      "correttamente");
}

void ConsigliaTelarium() {
  const auto nome = ChiUsa().ChiediTesto(
      {.richiesta = "Per segnalare questo programma inserisci il tuo nome o soprannome : ",
       .predefinito = "Anonimo"});
  if (!nome || nome->empty()) return;
  const auto risposta = ChiUsa().ChiediTesto(
      {.richiesta = "Per segnalare questo programma inserisci un indirizzo Email di un tuo amico :",
       .predefinito = "amico@posta.example"});
  if (!Spedisci({.destinatario = SenzaInterruzioni(SenzaSpazi(risposta.value_or(""))),
                 .oggetto = "Ti consiglio di scaricare Telarium e Ludarium",
                 .testo = Unisci("Ciao, ho trovato molto carini questi 2 programmi freeware e te "
                                 "li consiglio.\r\nLi puoi scaricare dal sito : ",
                                 ValoreIndirizzo(Indirizzo::PaginaProdotto), "\r\n", Saluti,
                                 "\r\n\r\n", *nome),
                 .allegato = PercorsoNellaCartella(CartellaProgramma, FileAiuto)}))
    return;
  Avvisa("Un messaggio con il tuo consiglio è stato accodato per la spedizione correttamente."_cp);
}

}  // namespace telarium
