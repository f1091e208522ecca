#pragma once

#include <QLineEdit>
#include <QListView>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace telarium {

class ModelloDiParole;

/// A sorted list of words, always open, under a field: what is typed there brings the first word
/// into view that begins so, and selects it when it is the whole word; the arrow and page keys lead
/// from there into the list. It changes the list that it was given, which outlives it and is
/// changed by nobody else meanwhile.
class ElencoDiParole : public QWidget {
 public:
  ElencoDiParole(const QString& nome, std::vector<std::string>& parole, QWidget* genitore);

  QLineEdit* Testo;
  QListView* Elenco;

  void Svuota();
  /// Adds words, nothing selected and the list at its beginning.
  void Aggiungi(std::vector<std::string> parole);
  /// Adds one and brings it into view; what is selected stays.
  void Aggiungi(const std::string& parola);
  /// Takes the word at a place, from 0, out of the list; nothing is selected then.
  void Togli(std::size_t posto);
  /// Puts a text into the field.
  void Scrivi(std::string_view testo);

  /// How wide it is with words of a length, in logical pixels.
  int LarghezzaPer(int lettere) const;

  /// The place, from 0, of the selected word.
  std::optional<std::size_t> Scelta() const;

  /// What a key, a click or double click, a change or the loss of the focus calls.
  void QuandoToccato(std::function<void()> chiama) { toccato_ = std::move(chiama); }

 protected:
  bool eventFilter(QObject* oggetto, QEvent* evento) override;

 private:
  std::size_t PostoDellaScritta() const;
  void CercaScritta();
  bool EntraInElenco(QKeyEvent& tasto);
  void MostraScelta(const QModelIndex& voce);
  void Lascia();

  std::vector<std::string>& parole_;
  ModelloDiParole* modello_;
  std::function<void()> toccato_;
};

}  // namespace telarium
