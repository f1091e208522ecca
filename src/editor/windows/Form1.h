#pragma once

#include <QAction>
#include <QLabel>
#include <QMainWindow>
#include <QPushButton>
#include <functional>
#include <map>
#include <string_view>
#include <vector>

#include "editor/fill_command.h"
#include "editor/main_window.h"
#include "editor/windows/drawing_area.h"
#include "editor/windows/fill_progress.h"
#include "editor/windows/status_bar.h"
#include "editor/windows/toolbar.h"
#include "platform/files.h"
#include "platform/user.h"

class QShortcut;

namespace telarium {

/// The main window. Menu entries and toolbar buttons are actions that carry their names and keys as
/// objectName; what they run stands in the table of form_commands.h.
class Form1 : public QMainWindow, public FinestraEditor {
 public:
  Form1();
  ~Form1() override;

  AreaDisegno* Area;
  BarraStrumenti* Toolbar1;
  BarraDiStato* StatusBar1;
  QLabel* Picture1;  // the splash picture while there is no crossword
  QLabel* Picture2;  // the logo at the right end of the toolbar
  QLabel* Picture3;  // holds the hand pointer, never shown
  QLabel* Label1;    // the tip beside the pointer
  RettangoloDiParola* Shape1;
  QPushButton* Command3d15;  // closes a print preview
  QPushButton* Command1;     // merges the clue file; never shown
  PannelloEstrazione* Avanzamento;

  ComandoEstrazione EstrazioneAutomatica{
      [this](const AvanzamentoEstrazione& avanzamento) { return SeguiEstrazione(avanzamento); }};

  /// A menu entry by its name.
  QAction& Voce(std::string_view nome) const;

  /// Takes the size of the screen and shows itself, the load of the program being done.
  void Mostra();

  /// The pointer over the logo, the picture of Picture3.
  QCursor PuntatoreDelLogo() const;

  /// Runs a command as a click on its entry does: with the activation that it queues, and with what
  /// came from outside meanwhile behind it.
  void Esegui(const std::function<void()>& comando);

  /// Opens a crossword that another start of the program was given; empty: only comes to the front.
  /// While a command runs it waits for its end.
  void RiceviDaFuori(const Percorso& nome);

  /// Runs the automatic fill with its panel; nothing else of the window can be used meanwhile.
  void Estrai();
  /// Runs the import of clues, likewise.
  void Importa();
  bool SeguiEstrazione(const AvanzamentoEstrazione& avanzamento);

  // What the editor asks of the window.
  double AltezzaToolbar1() const override { return Toolbar1->height(); }
  double AltezzaStatusBar1() const override { return StatusBar1->height(); }
  void Titolo(std::string_view titolo) override;
  void RinfrescaToolbar1() override { Toolbar1->update(); }
  void MostraSubito() override { Area->repaint(); }
  void MostraShape1(const Rettangolo& rettangolo) override;
  void NascondiShape1() override { Shape1->hide(); }
  double ScriviLabel1(std::string_view testo) override;
  void CollocaLabel1(double sinistra, double cima) override;
  void TogliLabel1() override { Label1->move(Label1->x(), height()); }
  void MostraCommand3d15(bool visibile) override { Command3d15->setVisible(visibile); }
  bool Command3d15Visibile() const override { return !Command3d15->isHidden(); }
  void MostraPicture1(bool visibile) override;
  bool Picture1Visibile() const override { return !Picture1->isHidden(); }
  void MostraModale(Modale quale) override;
  std::optional<ParolaDefinita> ModificaParola(const ParolaInEsame& parola) override;
  void AbilitaPulsante(int numero, bool abilitato) override;
  void PremiEdit(bool premuto) override;
  bool EditPremuto() const override;
  void AbilitaVoce(std::string_view nome, bool abilitata) override;
  void SpuntaVoce(std::string_view nome, bool spuntata) override;
  void CompletaVoce(std::string_view nome, std::string_view oggetto) override;
  void ApriMenu(std::string_view nome) override;
  void ScriviCommand1(std::string_view testo) override;
  void MettiGraficaAiMenu() override;
  void MettiGraficaAMenuFile() override;
  void CollocaPicture2() override;

 protected:
  void closeEvent(QCloseEvent* evento) override;
  bool eventFilter(QObject* oggetto, QEvent* evento) override;

 private:
  class Occupazione;

  void CreaControlli();
  void CreaMenu();
  void CollegaPulsanti();
  void PremutoPulsante(int numero);
  void Occupa(bool occupata);
  void Disponi();
  void CambiataMisura();
  void ApriRicevuti();
  void PassaSuArea(QPointF punto);
  void PremutaArea(Qt::MouseButton tasto, QPointF punto);

  std::map<std::string_view, QAction*> voci_;
  std::vector<Percorso> ricevuti_;
  bool occupata_ = false;        // by a run that lets the message loop go on
  bool misuraCambiata_ = false;  // during a command
  // The tip holds nothing of the grid. At the start it opens before the window has its final size.
  bool schemaLibero_ = false;
  QShortcut* esc_;
};

}  // namespace telarium
