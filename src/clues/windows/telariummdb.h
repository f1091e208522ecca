#pragma once

#include <QLineEdit>
#include <QPlainTextEdit>
#include <array>

#include "clues/windows/encyclopedia_window.h"
#include "platform/qt/word_line.h"

namespace telarium {

/// The browser of the encyclopedia that shows one word with its two families.
class telariummdb : public FinestraEnciclopedia {
 public:
  explicit telariummdb(QWidget* genitore);

  std::array<QLabel*, 3> lblLabels;
  // txtFields: 0 the hard family, 1 the easy one, 2 the word.
  std::array<QWidget*, 3> txtFields;
  QPushButton* Cerca;
  QPushButton* Command1;  // the same in a table
  QPushButton* Command2;  // asks the word processor

 protected:
  void MostraRiga() override;
  void PrendiDatiScritti() override;
  QWidget& PrimoCampo() override { return *txtFields[2]; }
  void MostraBottoni(bool b) override;
  void mouseMoveEvent(QMouseEvent* evento) override;

 private:
  void CreaCampi();
  void Disponi();
  QString Scritto(std::size_t campo) const;
  void Mostra(const std::array<QString, 3>& testi, bool scrivibili);
  void CercaUnaParola();
  void ChiediAiuto();
  void MostraTabella();

  CasellaMaiuscola* parola_;
  std::array<QPlainTextEdit*, 2> famiglie_;
  std::array<QString, 3> mostrati_;  // the boxes' texts as the row put them there
};

}  // namespace telarium
