#include <QMenu>
#include <QMenuBar>
#include <algorithm>

#include "auxiliary/addresses.h"
#include "editor/windows/Form1.h"
#include "editor/windows/form_commands.h"
#include "editor/windows/menu_table.h"
#include "editor/windows/pictures.h"
#include "platform/check.h"
#include "platform/qt/qt_text.h"

// The menu bar of Form1.
namespace telarium {
namespace {

constexpr std::size_t MaxCaratteriOggetto = 40;  // what an entry acts on can have any length

// The caption of an entry that has none in the table: it is configured.
QString TestoConfigurato(std::string_view nome) {
  struct Testo {
    std::string_view voce;
    Indirizzo valore;
  };
  constexpr Testo testi[] = {{"MenuPHP", Indirizzo::SitoProdotto},
                             {"Menui2", Indirizzo::TitoloMenui2},
                             {"Menui4", Indirizzo::TitoloMenui4}};
  for (const auto& [voce, valore] : testi) {
    if (voce == nome) return ComeVoceDiMenu(AQt(ValoreIndirizzo(valore)));
  }
  return {};
}

std::string Accorciato(std::string_view testo) {
  if (testo.size() <= MaxCaratteriOggetto) return std::string(testo);
  return std::string(testo.substr(0, MaxCaratteriOggetto)) + "...";
}

}  // namespace

void Form1::CreaMenu() {
  // The menu that takes the entries of each level.
  std::vector<QMenu*> menu;
  const std::span<const VoceDiMenu> voci = VociDelMenu();
  for (std::size_t i = 0; i < voci.size(); ++i) {
    const VoceDiMenu& voce = voci[i];
    const auto livello = static_cast<std::size_t>(voce.livello);
    menu.resize(livello);
    const QString testo = voce.testo.empty() ? TestoConfigurato(voce.nome) : AQt(voce.testo);
    const bool haSottomenu = i + 1 < voci.size() && voci[i + 1].livello > voce.livello;
    QAction* azione;
    if (haSottomenu) {
      menu.push_back(livello == 0 ? menuBar()->addMenu(testo) : menu.back()->addMenu(testo));
      azione = menu.back()->menuAction();
    } else if (voce.testo == "-") {
      azione = menu.back()->addSeparator();
    } else {
      azione = menu.back()->addAction(testo);
      azione->setShortcut(QKeySequence(QLatin1StringView(voce.tasti)));
      azione->setCheckable(ConSpunta(voce.nome));
      const ComandoDiForm1 comando = ComandoDellaVoce(voce.nome);
      connect(azione, &QAction::triggered, this, [this, azione, comando] {
        // A check mark shows a setting, which only its command changes.
        if (azione->isCheckable()) azione->toggle();
        Esegui([this, comando] { comando(*this); });
      });
    }
    azione->setObjectName(QLatin1StringView(voce.nome));
    voci_[voce.nome] = azione;
  }
  for (const std::string_view nome : VociNascoste())
    Voce(nome).setVisible(false);
}

QAction& Form1::Voce(std::string_view nome) const {
  const auto trovata = voci_.find(nome);
  Verifica(trovata != voci_.end(), "voce di menu sconosciuta");
  return *trovata->second;
}

void Form1::AbilitaVoce(std::string_view nome, bool abilitata) {
  Voce(nome).setEnabled(abilitata);
}

void Form1::SpuntaVoce(std::string_view nome, bool spuntata) {
  Voce(nome).setChecked(spuntata);
}

void Form1::CompletaVoce(std::string_view nome, std::string_view oggetto) {
  const std::span<const VoceDiMenu> voci = VociDelMenu();
  const auto voce = std::find_if(voci.begin(), voci.end(),
                                 [nome](const VoceDiMenu& una) { return una.nome == nome; });
  Verifica(voce != voci.end(), "voce di menu sconosciuta");
  QString testo = AQt(voce->testo);
  if (!oggetto.empty()) testo += QStringLiteral(": ") + ComeVoceDiMenu(AQt(Accorciato(oggetto)));
  Voce(nome).setText(testo);
}

void Form1::ApriMenu(std::string_view nome) {
  Voce(nome).menu()->popup(QCursor::pos());
}

void Form1::MettiGraficaAiMenu() {
  for (const auto& [voce, immagine] : GraficaDeiMenu())
    Voce(voce).setIcon(Immagine(immagine));
}

void Form1::MettiGraficaAMenuFile() {
  for (const auto& [voce, immagine] : GraficaDelMenuFile())
    Voce(voce).setIcon(Immagine(immagine));
}

}  // namespace telarium
