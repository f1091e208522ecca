#include "output/picture_page.h"

#include "editor/settings.h"
#include "output/clue_page.h"
#include "output/output_file.h"
#include "output/static_page.h"
#include "output/window_picture.h"

namespace telarium {

std::int16_t LarghezzaPicture = 0;

namespace {

const AzzeramentoDiSottosistema azzeramento([] { LarghezzaPicture = 0; });

constexpr std::size_t Trattini = 30;
// The picture's own name, and how the page spells it: on a file system that tells cases apart there
// are two files.
constexpr const char* NomePicture = "_filBMP_.BMP";
constexpr const char* NomePictureNellaPagina = "_filbmp_.bmp";

bool ScriviPictureDellaPagina() {
  const std::string bitmap = BitmapSuBianco(StampaSoluzioni);
  return ScriviPicture(FileDiUscita(NomePicture), bitmap) &&
         ScriviPicture(FileDiUscita(NomePictureNellaPagina), bitmap);
}

std::string PaginaConPicture() {
  const int altezza = ArrotondaPari(LarghezzaPicture * 3 / 4.0);
  TestoDiPagina pagina;
  pagina.Riga("<html><head>");
  pagina.Riga("<title>Anteprima HTML di Telarium con picture</title>");
  pagina.Riga("</head><body>");
  pagina.Riga(R"(<p align="center"> <img src=")", NomePictureNellaPagina, R"(" width=")",
              LarghezzaPicture, R"(" height=")", altezza, R"("></p>)");
  ScriviCorpoDiDefinizioni(pagina, Trattini);
  return std::move(pagina).Prendi();
}

}  // namespace

void StampaHTML() {
  if (NumColonne == 0 || !ScriviPictureDellaPagina()) return;
  const Percorso pagina = FileDiUscita(NomePaginaStatica);
  if (ScriviUscita(pagina, PaginaConPicture())) ApriUscita(pagina);
}

void StampaHTMLLarga(int larghezza) {
  LarghezzaPicture = static_cast<std::int16_t>(larghezza);
  StampaHTML();
}

}  // namespace telarium
