#include "editor/windows/form_commands.h"

#include <algorithm>
#include <iterator>

#include "auxiliary/links.h"
#include "editor/commands.h"
#include "editor/windows/Form1.h"
#include "fill/extraction.h"

namespace telarium {
namespace {

struct ComandoDiVoce {
  std::string_view voce;
  ComandoDiForm1 comando;
};

void CommutaProvaInfinita(Form1& form) {
  ProvaInfinita = ProvaInfinita ? Falso : Vero;
  form.SpuntaVoce("MenuInf", ProvaInfinita);
}

// The run leaves the grid in no mode; behind the button, the one of the Edit button holds again.
void EstraiDalPulsante(Form1& form) {
  form.Estrai();
  CambiaModoEdit();
}

template <int Lingua>
void ImpostaLingua(Form1&) {
  CambiaLingua(Lingua);
}

template <Indirizzo Quale>
void VaiA(Form1&) {
  ApriPagina(Quale);
}

constexpr ComandoDiVoce comandi[] = {
    {"menuSalva", [](Form1&) { SalvaCruciverba(); }},
    {"MenuEsci", [](Form1&) { EsciDalProgramma(); }},
    {"Menudef", [](Form1&) { EntraInModifica(); }},
    {"MenuLudarium", [](Form1&) { LanciaLudarium(); }},
    {"MenuEstrazione", [](Form1& form) { form.Estrai(); }},
    {"menuRidisegna", [](Form1&) { ChiudiAnteprima(); }},
    {"Menui0", VaiA<Indirizzo::Menui0>},
    {"MenuI1", VaiA<Indirizzo::MenuI1>},
    {"Menui2", VaiA<Indirizzo::Menui2>},
    {"Menui3", VaiA<Indirizzo::Menui3>},
    {"Menui4", VaiA<Indirizzo::Menui4>},
    {"MenuInf", CommutaProvaInfinita},
    {"MenuL1", ImpostaLingua<1>},
    {"MenuL2", ImpostaLingua<2>},
    {"MenuL3", ImpostaLingua<3>},
    {"MenuL4", ImpostaLingua<4>},
    {"MenuVis", [](Form1&) { CommutaStampaSoluzioni(); }},
    {"Menurett", [](Form1&) { CommutaRettangoloParola(); }},
    {"MenuAiuto", [](Form1&) { ApriAiuto(); }},
    {"menutelari", VaiA<Indirizzo::PaginaProdotto>},
    {"MenuPHP", VaiA<Indirizzo::SitoProdotto>},
    {"MenuMail", [](Form1&) { ScriviMail(Indirizzo::MailAutore); }},
};

constexpr AzioneDiPulsante pulsanti[] = {
    {.chiave = "Nuovo", .voce = "MenuNuovo"},
    {.chiave = "Apri", .voce = "MenuApri"},
    {.chiave = "Salva", .voce = "menuSalva"},
    {.chiave = "HTML", .menu = "Menuhtml"},
    {.chiave = "CambiaFont", .voce = "MenuFont"},
    {.chiave = "AggColonna", .voce = "MenuAC"},
    {.chiave = "TogliColonna", .voce = "MenuTC"},
    {.chiave = "AggRiga", .voce = "MenuAR"},
    {.chiave = "TogliRiga", .voce = "MenuTR"},
    {.chiave = "CasBianca", .voce = "MenuCB"},
    {.chiave = "CasNera", .voce = "MenuCN"},
    {.chiave = "Tabella", .voce = "MenuParole"},
    {.chiave = "Estrazione", .comando = EstraiDalPulsante},
    {.chiave = "Edit", .comando = [](Form1&) { CambiaModoEdit(); }},
    {.chiave = "Compila", .menu = "menuCompila"},
};

}  // namespace

ComandoDiForm1 ComandoDellaVoce(std::string_view nome) {
  const auto trovato = std::find_if(std::begin(comandi), std::end(comandi),
                                    [nome](const ComandoDiVoce& uno) { return uno.voce == nome; });
  return trovato == std::end(comandi) ? nullptr : trovato->comando;
}

AzioneDiPulsante AzioneDelPulsante(std::string_view chiave) {
  const auto trovata =
      std::find_if(std::begin(pulsanti), std::end(pulsanti),
                   [chiave](const AzioneDiPulsante& una) { return una.chiave == chiave; });
  return trovata == std::end(pulsanti) ? AzioneDiPulsante{} : *trovata;
}

bool HaComando(const AzioneDiPulsante& azione) {
  return azione.comando || !azione.menu.empty() || ComandoDellaVoce(azione.voce);
}

}  // namespace telarium
