#pragma once

#include <QPointer>
#include <QPrinter>
#include <QWidget>
#include <memory>

#include "platform/printer.h"
#include "platform/surface.h"

namespace telarium {

/// The system's printers and its PDF printer, which is always there: the type that they print with,
/// and what the user chose in the last printer dialog.
class StampanteQt : public Stampante {
 public:
  /// The main window, to which the dialog belongs when no modal window is open.
  void Finestra(QWidget* finestra) { finestra_ = finestra; }

  bool Carattere(std::string_view nome) override;
  const std::string& Carattere() const override { return famiglia_; }
  void Corsivo(bool corsivo) override { corsivo_ = corsivo; }
  bool Corsivo() const override { return corsivo_; }
  void Grassetto(bool grassetto) override { grassetto_ = grassetto; }
  bool Grassetto() const override { return grassetto_; }
  std::unique_ptr<LavoroDiStampa> IniziaLavoro(const std::string& nome) override;

 private:
  QPrinter& Scelta();
  void ProponiFile(const QString& nome);
  bool Chiedi();

  QPointer<QWidget> finestra_;
  std::unique_ptr<QPrinter>
      scelta_;  // asking for the printers can take long: not before the first job
  std::string famiglia_{CarattereIniziale};
  bool corsivo_ = false;
  bool grassetto_ = false;
};

}  // namespace telarium
