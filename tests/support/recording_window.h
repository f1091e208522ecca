#pragma once

#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "editor/main_window.h"

namespace telarium {

/// A main window without a window: it keeps the state that the editor gives it.
class RecordingWindow : public FinestraEditor {
 public:
  RecordingWindow() { ImpostaFinestra(this); }
  ~RecordingWindow() override { ImpostaFinestra(nullptr); }

  double toolbarHeight = 36;
  double statusBarHeight = 24;
  std::string title;
  bool preview = false;  // Command3d15 shows
  bool splash = false;   // Picture1 shows
  bool editPressed = false;
  std::string importCaption;  // of Command1
  std::set<int> enabledButtons;
  std::map<std::string, bool, std::less<>> enabled;
  std::map<std::string, bool, std::less<>> checked;
  std::string tip;
  double tipLeft = 0, tipTop = 0;
  bool tipShows = false;
  std::optional<Rettangolo> rectangle;
  std::vector<Modale> shown;          // the modal windows so far
  std::function<void()> whenShown;    // what the user does in one
  std::vector<ParolaInEsame> edited;  // the words that the clue editor got so far
  // What the user does with one there; without it, gives up.
  std::function<std::optional<ParolaDefinita>(ParolaDefinita)> whenEdited;
  std::vector<std::string> calls;    // the calls without a state, by their names
  std::function<void()> whenPlaced;  // what CollocaPicture2, of the first activation, does besides

  double AltezzaToolbar1() const override { return toolbarHeight; }
  double AltezzaStatusBar1() const override { return statusBarHeight; }
  void Titolo(std::string_view titolo) override { title = titolo; }
  void RinfrescaToolbar1() override { calls.push_back("RinfrescaToolbar1"); }
  void MostraShape1(const Rettangolo& rettangolo) override { rectangle = rettangolo; }
  void NascondiShape1() override { rectangle.reset(); }
  /// A character of the tip is 10 pixels wide.
  double ScriviLabel1(std::string_view testo) override {
    tip = testo;
    return 10.0 * static_cast<double>(testo.size());
  }
  void CollocaLabel1(double sinistra, double cima) override {
    tipLeft = sinistra;
    tipTop = cima;
    tipShows = true;
  }
  void TogliLabel1() override { tipShows = false; }
  void MostraCommand3d15(bool visibile) override { preview = visibile; }
  bool Command3d15Visibile() const override { return preview; }
  void MostraPicture1(bool visibile) override { splash = visibile; }
  bool Picture1Visibile() const override { return splash; }
  void MostraModale(Modale quale) override {
    shown.push_back(quale);
    if (whenShown) whenShown();
  }
  std::optional<ParolaDefinita> ModificaParola(const ParolaInEsame& parola) override {
    edited.push_back(parola);
    return whenEdited ? whenEdited(parola.testo) : std::nullopt;
  }
  void AbilitaPulsante(int numero, bool abilitato) override {
    if (abilitato) {
      enabledButtons.insert(numero);
    } else {
      enabledButtons.erase(numero);
    }
  }
  void PremiEdit(bool premuto) override { editPressed = premuto; }
  bool EditPremuto() const override { return editPressed; }
  void AbilitaVoce(std::string_view nome, bool abilitata) override {
    enabled[std::string(nome)] = abilitata;
  }
  void SpuntaVoce(std::string_view nome, bool spuntata) override {
    checked[std::string(nome)] = spuntata;
  }
  void ApriMenu(std::string_view nome) override {
    calls.push_back("ApriMenu " + std::string(nome));
  }
  void ScriviCommand1(std::string_view testo) override { importCaption = testo; }
  void MettiGraficaAiMenu() override { calls.push_back("MettiGraficaAiMenu"); }
  void MettiGraficaAMenuFile() override { calls.push_back("MettiGraficaAMenuFile"); }
  void CollocaPicture2() override {
    calls.push_back("CollocaPicture2");
    if (whenPlaced) whenPlaced();
  }
};

}  // namespace telarium
