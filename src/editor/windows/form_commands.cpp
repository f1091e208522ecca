#include "editor/windows/form_commands.h"

#include <algorithm>
#include <iterator>

#include "auxiliary/links.h"
#include "auxiliary/mail.h"
#include "clues/bulk.h"
#include "clues/table_view.h"
#include "editor/cell_editing.h"
#include "editor/commands.h"
#include "editor/file_commands.h"
#include "editor/history_commands.h"
#include "editor/resizing.h"
#include "editor/windows/Form1.h"
#include "output/interactive_page.h"
#include "output/picture_page.h"
#include "output/preview.h"
#include "output/printing.h"
#include "output/script_page.h"
#include "output/static_page.h"
#include "output/web_opening.h"
#include "output/window_picture.h"
#include "output/word_export.h"
#include "platform/check.h"

namespace telarium {
namespace {

struct ComandoDiVoce {
  std::string_view voce;
  ComandoDiForm1 comando;
};

void CommutaProvaInfinita(Form1& form) {
  Booleano16& infinita = form.EstrazioneAutomatica.ProvaInfinita;
  infinita = infinita ? Falso : Vero;
  form.SpuntaVoce("MenuInf", infinita);
}

// The run leaves the grid in no mode; behind the button, the one of the Edit button holds again.
void EstraiDalPulsante(Form1& form) {
  form.Estrai();
  CambiaModoEdit();
}

// A menu entry of the resizing commands also leaves the tool that was active.
template <void (*Ridimensiona)()>
void RidimensionaDaMenu(Form1&) {
  ImpostaPuntatoreMouse(PuntatoreFreccia);
  Ridimensiona();
}

template <int Lingua>
void ImpostaLingua(Form1&) {
  CambiaLingua(Lingua);
}

// A preview shows what the sheet will show.
void AggiornaAnteprima(const Form1& form) {
  if (form.Command3d15Visibile()) AnteprimaSchema();
}

template <std::int16_t Modo>
void Preleva(Form1& form) {
  Prelevadefinizioni(Modo);
  AggiornaAnteprima(form);
}

void CommutaSoluzioni(Form1& form) {
  CommutaStampaSoluzioni();
  AggiornaAnteprima(form);
}

template <int Larghezza>
void MostraPicture(Form1&) {
  StampaHTMLLarga(Larghezza);
}

template <Indirizzo Quale>
void VaiA(Form1&) {
  ApriPagina(Quale);
}

constexpr ComandoDiVoce comandi[] = {
    {"MenuNuovo", [](Form1&) { NuovoCruciverba(); }},
    {"MenuApri", [](Form1&) { ApriConFinestra(); }},
    {"menuSalva", [](Form1&) { SalvaCruciverba(); }},
    {"MenuSalvaCN", [](Form1&) { SalvaConNome(); }},
    {"MenuAnteprima", [](Form1&) { AnteprimaSchema(); }},
    {"menuvbhtml", [](Form1&) { EsportaDaModello(); }},
    {"menusphtml", [](Form1&) { MostraPaginaStatica(); }},
    {"Menuhtmlword", [](Form1&) { EsportaInWord(); }},
    {"menuwpic", [](Form1&) { EsportaInWordConPicture(); }},
    {"mENU400", MostraPicture<400>},
    {"Menu640", MostraPicture<640>},
    {"Menu800", MostraPicture<800>},
    {"Menu1024", MostraPicture<1024>},
    {"mENU1280", MostraPicture<1280>},
    {"Menu1600", MostraPicture<1600>},
    {"MenuStampa", [](Form1&) { StampaDaMenu(); }},
    {"menujava", [](Form1&) { PubblicaCruciverba(); }},
    {"menurl", [](Form1&) { ApriDaIndirizzo(); }},
    {"MenuEsci", [](Form1&) { EsciDalProgramma(); }},
    {"MenuAC", RidimensionaDaMenu<AggiungiColonna>},
    {"MenuAR", RidimensionaDaMenu<AggiungiRiga>},
    {"MenuTC", RidimensionaDaMenu<TogliColonna>},
    {"MenuTR", RidimensionaDaMenu<TogliRiga>},
    {"MenuCN", [](Form1&) { AttivaCasellaNera(); }},
    {"MenuCB", [](Form1&) { AttivaCasellaBianca(); }},
    {"Menudef", [](Form1&) { EntraInModifica(); }},
    {"MenuParole", [](Form1&) { ApriTabella(); }},
    {"MenuFont", [](Form1&) { ScegliCarattere(); }},
    {"MenuLudarium", [](Form1&) { LanciaLudarium(); }},
    {"MenuEstrazione", [](Form1& form) { form.Estrai(); }},
    {"menuRidisegna", [](Form1&) { ChiudiAnteprima(); }},
    {"menudiz", [](Form1&) { GestisciDizionari(); }},
    {"Menudefiniz", [](Form1& form) { form.MostraModale(Modale::telariummdb); }},
    {"Menuschemi", [](Form1&) { GestisciModelli(); }},
    {"Menui0", VaiA<Indirizzo::Menui0>},
    {"MenuI1", VaiA<Indirizzo::MenuI1>},
    {"Menui2", VaiA<Indirizzo::Menui2>},
    {"Menui3", VaiA<Indirizzo::Menui3>},
    {"Menui4", VaiA<Indirizzo::Menui4>},
    {"Menupreltutt", Preleva<ModoTutte>},
    {"Menuprelfac", Preleva<ModoFacili>},
    {"menupreldif", Preleva<ModoDifficili>},
    {"menuSalvaDef", [](Form1&) { SalvaDefinizioni(); }},
    {"menuado", [](Form1& form) { form.MostraModale(Modale::Form6); }},
    {"MenuSaveWMF", [](Form1&) { SalvaPicture(); }},
    {"menusetschema", [](Form1&) { RegolaSchema(); }},
    {"MenuInf", CommutaProvaInfinita},
    {"MenuL1", ImpostaLingua<1>},
    {"MenuL2", ImpostaLingua<2>},
    {"MenuL3", ImpostaLingua<3>},
    {"MenuL4", ImpostaLingua<4>},
    {"MenuVis", CommutaSoluzioni},
    {"Menurett", [](Form1&) { CommutaRettangoloParola(); }},
    {"MenuAnnulla", [](Form1&) { AnnullaModifica(); }},
    {"MenuRipeti", [](Form1&) { RipetiModifica(); }},
    {"MenuCronologia", [](Form1&) { MostraCronologia(); }},
    {"MenuAiuto", [](Form1&) { ApriAiuto(); }},
    {"Menusugg", [](Form1&) { ApriSuggerimenti(); }},
    {"menuconsiglia", [](Form1&) { ConsigliaTelarium(); }},
    {"menutelari", VaiA<Indirizzo::PaginaProdotto>},
    {"MenuPHP", VaiA<Indirizzo::SitoProdotto>},
    {"MenuMail", [](Form1&) { ScriviMail(Indirizzo::MailAutore); }},
    {"mandaschema", [](Form1&) { MandaSchema(); }},
    {"MenuInfo", [](Form1&) { MostraInformazioni(); }},
};

constexpr AzioneDiPulsante pulsanti[] = {
    {.chiave = "Nuovo", .voce = "MenuNuovo"},
    {.chiave = "Apri", .voce = "MenuApri"},
    {.chiave = "Salva", .voce = "menuSalva"},
    {.chiave = "Stampa", .comando = [](Form1&) { StampaSchema(); }},
    {.chiave = "Anteprima", .voce = "MenuAnteprima"},
    {.chiave = "HTML", .menu = "Menuhtml"},
    {.chiave = "CambiaFont", .voce = "MenuFont"},
    {.chiave = "AggColonna", .comando = [](Form1&) { AggiungiColonna(); }},
    {.chiave = "TogliColonna", .comando = [](Form1&) { TogliColonna(); }},
    {.chiave = "AggRiga", .comando = [](Form1&) { AggiungiRiga(); }},
    {.chiave = "TogliRiga", .comando = [](Form1&) { TogliRiga(); }},
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
  Verifica(trovato != std::end(comandi), "ComandoDellaVoce: voce senza comando");
  return trovato->comando;
}

AzioneDiPulsante AzioneDelPulsante(std::string_view chiave) {
  const auto trovata =
      std::find_if(std::begin(pulsanti), std::end(pulsanti),
                   [chiave](const AzioneDiPulsante& una) { return una.chiave == chiave; });
  return trovata == std::end(pulsanti) ? AzioneDiPulsante{} : *trovata;
}

}  // namespace telarium
