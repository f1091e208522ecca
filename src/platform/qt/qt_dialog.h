#pragma once

#include <QDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QString>

// What the program's own windows and their controls have in common.
namespace telarium {

/// The window that a box belongs to: the modal one that is open, else the main window.
QWidget* GenitoreDiScatola(QWidget* principale);

/// Takes the pictures from a box's buttons: the message boxes have none, and so has no other.
void TogliFigure(const QDialog& scatola);

/// Gives a control its name, by which tests and style sheets find it.
template <class Controllo>
Controllo* Chiamato(const QString& nome, Controllo* controllo) {
  controllo->setObjectName(nome);
  return controllo;
}

/// Whether a key is Return, or Enter of the number pad.
inline bool Invio(const QKeyEvent& tasto) {
  return tasto.key() == Qt::Key_Return || tasto.key() == Qt::Key_Enter;
}

/// A button that Enter presses while it has the focus, and not in another control. The key held
/// down presses it once.
QPushButton* Pulsante(const QString& nome, const QString& testo, const QString& suggerimento,
                      QWidget* genitore);

/// Puts a text into a box of several lines; texts without a blank to break at take no longer than
/// others.
void Mostra(QPlainTextEdit& casella, const QString& testo);

/// The text of a box of several lines, separated by line feeds, hard blanks as they are.
QString TestoDi(const QPlainTextEdit& casella);

/// A modal window. Esc and its close box are Cancel.
class FinestraModale : public QDialog {
 public:
  /// Whether it has done, since it was shown, what it does when it opens.
  bool Pronta() const { return pronta_; }

 protected:
  FinestraModale(const QString& nome, const QString& titolo, QWidget* genitore);

  /// Puts the window in its place on the usable part of a screen, each time it opens: in the
  /// middle.
  virtual void Colloca(const QRect& schermo);

  /// What a window does once it is on the screen, each time it opens.
  virtual void Attivata() {}

  void showEvent(QShowEvent* evento) override;

 private:
  bool pronta_ = false;
};

/// A line of text that is selected whole when it gets the focus, but for the focus that only comes
/// back from its own menu or another window.
class CasellaDiTesto : public QLineEdit {
 public:
  using QLineEdit::QLineEdit;

 protected:
  void focusInEvent(QFocusEvent* evento) override;
  void mousePressEvent(QMouseEvent* evento) override;

 private:
  bool appenaRaggiunta_ = false;  // by the mouse, whose press would end the selection
};

/// The name of a control of an array by its index, as "txtFields_0".
QString NomeInSerie(const char* nome, int indice);

}  // namespace telarium
