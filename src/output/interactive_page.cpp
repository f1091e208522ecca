#include "output/interactive_page.h"

#include <span>

#include "editor/settings.h"
#include "model/crossword_file.h"
#include "output/clue_entries.h"
#include "output/output_file.h"
#include "output/page_text.h"

namespace telarium {
namespace {

constexpr std::size_t Trattini = 16;
constexpr int LarghezzaDiCasella = 35;  // pixels
constexpr int AltezzaDiCasella = 40;

constexpr std::string_view PrimaDelBlocco =
    "<!-- CODICE HTML SALVATAGGIO - Telarium Versione 7 - Non modificare o cancellare queste righe "
    "di commenti ";
constexpr std::string_view DopoIlBlocco = " FINE CODICE HTML SALVATAGGIO -->";

// The "<!--" hides a script from browsers that know none; to the others it is a comment of one
// line.
constexpr std::string_view InizioDelleIstruzioni[] = {
    R"(<script Language="JavaScript">)",
    "<!-- inizio intestazione per vecchi browsers",
};
constexpr std::string_view FineDelleIstruzioni =
    "<!-- fine dell'intestazione per vecchi browsers -->";

constexpr std::string_view VariabiliDellOrologio[] = {
    "var timerID = null;",
    "var timerRunning = true;",
    "var x= 0;",
    "var xOld = x;",
};

constexpr std::string_view Orologio[] = {
    "function stopclock (){",
    " if(timerRunning) {",
    "  clearTimeout(timerID);",
    "  timerRunning = false;",
    "  }",
    "}",
    "",
    "function startclock () {",
    " stopclock();",
    " showtime();",
    "}",
    "",
    "function showtime () {",
    "    x++;",
    "    document.theClock.timeBox.value = x;",
    R"-(    timerID = setTimeout("showtime()",1000);)-",
    "    timerRunning = true;",
    "}",
    "",
};

constexpr std::string_view CasellaDelTempo =
    R"(<input name="timeBox" Size="2" style="BORDER-TOP-STYLE: none; BORDER-RIGHT-STYLE: none; )"
    R"(BORDER-LEFT-STYLE: none; BORDER-BOTTOM-STYLE: none" > )";

void ScriviRighe(TestoDiPagina& pagina, std::span<const std::string_view> righe) {
  for (const std::string_view riga : righe)
    pagina.Riga(riga);
}

void ScriviOrologio(TestoDiPagina& pagina) {
  ScriviRighe(pagina, InizioDelleIstruzioni);
  ScriviRighe(pagina, VariabiliDellOrologio);
  pagina.Riga(FineDelleIstruzioni);
  pagina.Riga("</script>");
  ScriviRighe(pagina, InizioDelleIstruzioni);
  ScriviRighe(pagina, Orologio);
  pagina.Riga(FineDelleIstruzioni);
  pagina.Riga("</SCRIPT>");
  pagina.Riga();
}

void ScriviInizioDelModulo(TestoDiPagina& pagina, const ValoriDiPagina& valori) {
  pagina.Riga(R"(<BODY onload="startclock();" style="font-family: )", valori.font,
              FineDelloStile(valori), '>');
  ScriviTitolo(pagina, valori);
  pagina.Riga(R"-(<form Name = "theClock" onsubmit="return Form_Validator(this)">)-");
  pagina.Riga(R"(<p align="center">Tempo trascorso )", CasellaDelTempo);
  pagina.Riga(" Sec. </p>");
  pagina.Riga(R"(<div align="center"><center><table border="1" cellspacing="0"><tr>)");
}

void ScriviElenco(TestoDiPagina& pagina, int direzione, std::string_view colore,
                  std::string_view titolo) {
  pagina.Riga(R"(<td valign="top" bgcolor=#)", colore, R"(><p align="center"><b>)", titolo,
              "</b><ol>");
  PerOgniDefinizione(direzione, Trattini, [&](int numero, const std::string& definizione) {
    pagina.Riga(R"(<li Size="1" style="font-size: 10 px" value=")", numero, R"("><Font Size="1">)",
                definizione, "</font>");
  });
}

// The name of a cell's text box in the page.
int NumeroDiCampo(Casella casella) {
  return (casella.riga - 1) * NumColonne + casella.colonna;
}

void ScriviCasella(TestoDiPagina& pagina, Casella casella, bool nera) {
  const int numero = NumeroCasella(casella.colonna, casella.riga);
  if (numero == 0) pagina.Riga(R"(<p align="center">)");
  if (nera) {
    pagina.Riga(R"(<font size="3">)", StampaSoluzioni ? "##" : "*", "</td>");
    return;
  }
  if (numero != 0) pagina.Scrivi(R"(<p><sup><font size="1">)", numero, "</font></sup>");
  pagina.Riga(R"(<input type="text" name="num)", NumeroDiCampo(casella),
              R"(" size="1" MaxLength=1 value=""></td>)");
}

// One check for each white cell, the last cell first. Gives how many there are.
int ScriviControlli(TestoDiPagina& pagina) {
  int totale = 0;
  for (int r = NumRighe; r >= 1; --r) {
    for (int c = NumColonne; c >= 1; --c) {
      const char lettera = LetteraCasella(c, r);
      if (lettera == CellaNera) continue;
      ++totale;
      pagina.Riga(" if (theForm.num", NumeroDiCampo({c, r}), R"(.value.toUpperCase( ) == ")",
                  lettera, R"("))");
      pagina.Riga("   finite++;");
      pagina.Riga();
    }
  }
  return totale;
}

void ScriviVerifica(TestoDiPagina& pagina) {
  ScriviRighe(pagina, InizioDelleIstruzioni);
  pagina.Riga("function Form_Validator(theForm){");
  pagina.Riga("var finite = 0;");
  const int totale = ScriviControlli(pagina);
  pagina.Riga(" var perc = 0;");
  pagina.Riga(" if (finite==0) { perc=0 } else { perc = Math.round(finite / ", totale, " * 100)}");
  pagina.Riga(" if(finite == ", totale, ") {");
  pagina.Riga(
      "   alert('Complimenti! hai risolto il cruciverba completamente in : ' + "
      "theClock.timeBox.value + ' Secondi');");
  pagina.Riga("   return(false);");
  pagina.Riga("}");
  // Each \n is for the browser's message.
  pagina.Riga(
      R"(alert ('Tempo impiegato : ' + theClock.timeBox.value + ' Secondi \nLettere totali nel )"
      R"(cruciverba : )",
      totale,
      R"(\nLettere risolte correttamente: ' + finite + '\nPercentuale risolta = ' + perc + '%');)");
  pagina.Riga(" return(false);");
  pagina.Riga("}");
  pagina.Riga(FineDelleIstruzioni);
  pagina.Riga("</SCRIPT>");
}

}  // namespace

std::optional<std::string> PaginaInterattiva() {
  const auto blocco = TestoDaPubblicare();
  if (!blocco) return std::nullopt;
  const ValoriDiPagina valori = ValoriAttuali();
  TestoDiPagina pagina;
  ScriviTesta(pagina, valori);
  pagina.Scrivi(PrimaDelBlocco, InizioDelBlocco, *blocco);
  pagina.Riga(DopoIlBlocco);
  ScriviOrologio(pagina);
  ScriviInizioDelModulo(pagina, valori);
  ScriviElenco(pagina, Orizzontale, "FFFF00", "ORIZZONTALI");
  pagina.Riga("</li></ol></td>");
  ScriviGriglia(pagina, LarghezzaDiCasella, AltezzaDiCasella,
                [&](Casella casella, bool nera) { ScriviCasella(pagina, casella, nera); });
  pagina.Riga("</li></ol></td></table><td>");
  ScriviElenco(pagina, Verticale, "00FFFF", "VERTICALI");
  pagina.Riga(
      R"(</td></table><p><input type="submit" value="Ho finito / controlla" name="Invia"></p></form>)");
  ScriviCollegamento(pagina, "Schema di gioco generato automaticamente", valori);
  ScriviVerifica(pagina);
  pagina.Riga("</body></html>");
  return std::move(pagina).Prendi();
}

void PubblicaCruciverba() {
  if (NumColonne == 0) return;
  const auto pagina = PaginaInterattiva();
  const Percorso file = FileDiUscita(NomePaginaInterattiva);
  if (!pagina) return AvvisaErroreDiUscita(file, CruciverbaNonScrivibile);
  if (ScriviUscita(file, *pagina)) ApriUscita(file);
}

}  // namespace telarium
