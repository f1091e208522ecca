#include "editor/windows/menu_table.h"

#include <algorithm>
#include <iterator>

#include "platform/codepage.h"

namespace telarium {
namespace {

constexpr VoceDiMenu voci[] = {
    {0, "MenuFile", "&File"},
    {1, "MenuNuovo", "&Nuovo", "Ctrl+U"},
    {1, "MenuApri", "&Apri ...", "F3"},
    {1, "menuSalva", "&Salva", "Ctrl+S"},
    {1, "MenuSalvaCN", "Salva &Con nome ..."},
    {1, "Meno3", "-"},
    {1, "MenuAnteprima", "Ante&prima di stampa ...", "Ctrl+A"},
    {1, "Menuhtml", "Anteprima HTML / DOC ..."},
    {2, "menuvbhtml", "Nel browser HTML (&Vbscript)"},
    {2, "menusphtml", "Nel browser &HTML"},
    {2, "Menuhtmlword", "In &Word (se installato) senza picture"},
    {2, "menuwpic", "In Word se installato (con &Picture)"},
    {2, "menukkk", "-"},
    {2, "mENU400", "Nel browser picture  &400 pixel"},
    {2, "Menu640", "Nel browser picture  &640 pixel"},
    {2, "Menu800", "Nel browser picture  &800 Pixel"},
    {2, "Menu1024", "Nel browser picture &1024 Pixel"},
    {2, "mENU1280", "Nel browser picture 1&280 pixel"},
    {2, "Menu1600", "Nel browser picture 16&00 pixel"},
    {1, "MenuStampa", "&Stampa ..."},
    {1, "menujava", "Salva file per pubblicazione su Internet"},
    {1, "menurl", "Apri file da URL Internet (Solo formato Telarium 7)", "Ctrl+I"},
    {1, "MenuMeno2", "-"},
    {1, "MenuEsci", "&Esci", "Ctrl+F4"},

    {0, "MenuEdit", "&Edit"},
    {1, "MenuAC", "Aggiungi &Colonna"},
    {1, "MenuAR", "Aggiungi &Riga"},
    {1, "MenuTC", "Togli C&olonna"},
    {1, "MenuTR", "Togli R&iga"},
    {1, "MenuMeno4", "-"},
    {1, "MenuCN", "Metti casella &Nera ", "Ctrl+N"},
    {1, "MenuCB", "Metti casella &Bianca", "Ctrl+B"},
    {1, "Meno4", "-"},
    {1, "Menudef", "&Edit parola/definizione", "Ctrl+D"},
    {1, "MenuParole", "&Tabella Parole/Definizioni ...", "Ctrl+W"},

    {0, "MenuUtiliti", "&Utilità"_cp},
    {1, "MenuFont", "Scegli &Font ...", "Ctrl+F"},
    {1, "MenuLudarium", "&Lancia Ludarium ..."},
    {1, "MenuEstrazione", "&Estrazione automatica schema ..."},
    {1, "menuRidisegna", "&Ridisegna schema"},
    {1, "MenuMeno3", "-"},
    {1, "menudiz", "&Gestione dizionari ...", "Ctrl+Z"},
    {1, "Menudefiniz", "Gestione &Definizioni", "Ctrl+J"},
    {1, "Menuschemi", "Gestione schemi predefinito"},
    {1, "menoMe", "-"},
    {1, "menuint", "Dizionari / Enciclopedie On line"},
    {2, "Menui0", "Dizionario Italiano &Hoepli online"},
    {2, "MenuI1", "&Dizionario Garzanti"},
    {2, "Menui2", ""},
    {2, "Menui3", "&Enciclopedia Logos"},
    {2, "Menui4", ""},
    {1, "menubarrr", "-"},
    {1, "menuCompila", "&Preleva tutte le definizioni dall'Enciclopedia"},
    {2, "Menupreltutt", "Preleva definiz. facili e difficili"},
    {2, "Menuprelfac", "Preleva solo quelle facili"},
    {2, "menupreldif", "Preleva solo quelle difficili"},
    {1, "menuSalvaDef", "&Salva tutte le definizioni sull'Enciclopedia"},
    {1, "menummm", "-"},
    {1, "menuado", "&Tecnologia ADO di accesso ai dati Microsoft"},
    {1, "menummme", "-"},
    {1, "MenuSaveWMF", "Salva cruciverba su immagine BMP ..."},

    {0, "Menupz", "&Opzioni"},
    {1, "menusetschema", "Settaggio schema ..."},
    {1, "menumss", "-"},
    {1, "MenuInf", "Prova estrazione automatica all'infinito"},
    {1, "MenuIL", "&Imposta lingua dizionario"},
    {2, "MenuL1", "&Italiano"},
    {2, "MenuL2", "&English"},
    {2, "MenuL3", "&Latino"},
    {2, "MenuL4", "&Francese"},
    {1, "MenuVis", "&Non visualizzare soluzioni in stampa"},
    {1, "Menurett", "&Visualizza rettangolo parola"},

    {0, "MenuLaboratorio", "&Laboratorio"},
    {1, "MenuAnnulla", "&Annulla modifica", "Alt+Backspace"},
    {1, "MenuRipeti", "&Ripeti modifica", "Alt+Shift+Backspace"},
    {1, "MenuCronologia", "Cronolo&gia..."},

    {0, "MenuHelp", "&?"},
    {1, "MenuAiuto", "&Aiuto", "F1"},
    {1, "Menusugg", "&Suggerimenti del giorno ..."},
    {1, "menmen", "-"},
    {1, "menuconsiglia", "Consiglia Telarium a un amico ..."},
    {1, "menutelari", "Telarium e Ludarium su &Internet ..."},
    {1, "mwnoiui", "-"},
    {1, "MenuPHP", "", "Ctrl+F1"},
    {1, "MenuMail", "&Manda una Mail all'autore ...", "Shift+Ctrl+F1"},
    {1, "manuiua", "-"},
    {1, "mandaschema", "Manda il tuo schema via mail, ne riceverai altri ..."},
    {1, "MenuMeno1", "-"},
    {1, "MenuInfo", "&Info su Telarium ...", "F4"},
};

constexpr std::string_view nascoste[] = {"menuvbhtml", "Menuschemi"};

constexpr std::string_view conSpunta[] = {"MenuInf", "MenuL1",  "MenuL2",  "MenuL3",
                                          "MenuL4",  "MenuVis", "Menurett"};

constexpr GraficaDiVoce grafica[] = {
    {"menuSalva", "save"},       {"MenuAnteprima", "preview"},  {"Menuhtml", "html"},
    {"MenuStampa", "print"},     {"MenuAC", "add_column"},      {"MenuAR", "add_row"},
    {"MenuTC", "remove_column"}, {"MenuTR", "remove_row"},      {"MenuCN", "black_cell"},
    {"MenuCB", "white_cell"},    {"Menudef", "edit"},           {"MenuParole", "table"},
    {"MenuFont", "font"},        {"MenuEstrazione", "extract"},
};

constexpr GraficaDiVoce graficaFile[] = {
    {"MenuNuovo", "new"}, {"MenuApri", "open"}, {"menuSalva", "save"}};

}  // namespace

std::span<const VoceDiMenu> VociDelMenu() {
  return voci;
}

std::span<const std::string_view> VociNascoste() {
  return nascoste;
}

bool ConSpunta(std::string_view nome) {
  return std::find(std::begin(conSpunta), std::end(conSpunta), nome) != std::end(conSpunta);
}

std::span<const GraficaDiVoce> GraficaDeiMenu() {
  return grafica;
}

std::span<const GraficaDiVoce> GraficaDelMenuFile() {
  return graficaFile;
}

}  // namespace telarium
