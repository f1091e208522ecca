#include "auxiliary/links.h"

#include "platform/codepage.h"
#include "platform/platform.h"
#include "platform/text.h"

namespace telarium {

void ApriIndirizzo(const std::string& indirizzo) {
  if (!indirizzo.empty() && Sistema().ApriIndirizzo(indirizzo)) return;
  Avvisa(Unisci("Non è possibile aprire l'indirizzo \""_cp, indirizzo,
                "\": manca un programma adatto o l'indirizzo non è valido."_cp),
         {}, Icona::Avviso);
}

void ApriPagina(Indirizzo quale) {
  ApriIndirizzo(ConSchema(ValoreIndirizzo(quale)));
}

void ScriviMail(Indirizzo quale) {
  ApriIndirizzo("mailto:" + ValoreIndirizzo(quale));
}

}  // namespace telarium
