#pragma once

#include <QLabel>
#include <QPushButton>
#include <array>

#include "crossworddialogs/windows/file_lists.h"
#include "dictionary/open_dictionary.h"
#include "dictionary/windows/word_box.h"
#include "dictionary/word_list.h"
#include "model/boolean.h"
#include "platform/pace.h"
#include "platform/qt/qt_canvas.h"
#include "platform/qt/qt_dialog.h"

namespace telarium {

/// The dictionary manager: reads a dictionary into one sorted list for each length of word, changes
/// the lists and writes the dictionary anew from them. What was not written is gone when it closes.
/// The dictionary opened last in it stays the open one.
class Form4 : public FinestraModale {
 public:
  explicit Form4(QWidget* genitore);
  ~Form4() override;

  static constexpr int NumListe = MaxLunghezza - MinLunghezza + 1;

  // Of each length: its heading, its words, their number.
  std::array<QLabel*, NumListe> Label1;
  std::array<ElencoDiParole*, NumListe> Combo1;
  std::array<QLabel*, NumListe> Label2;
  QLabel* Label3;  // the status line
  QLabel* Label4;  // TotaleParole
  QLabel* Label5;
  QLabel* Label6;
  ListaFile* File1;  // the dictionaries of the system
  QLabel* Label7;
  ListaFile* File2;       // the private ones
  QLabel* Label9;         // name of the open dictionary
  Tela* Picture1;         // how far a reading or writing has come
  QPushButton* Command1;  // asks for a word to add
  QLineEdit* Text1;
  QPushButton* Command3;  // adds it
  QPushButton* Command5;  // deletes the selected word
  QPushButton* Command4;  // rebuild
  QPushButton* Command8;  // import
  QPushButton* Command6;  // new private dictionary
  QPushButton* Command7;  // deletes one
  QPushButton* Command2;  // exit

  /// Reads the open dictionary, through the sections that its opening has found, into the lists,
  /// beside what they hold. The message loop runs meanwhile; ends early
  /// when the window is closed.
  void LeggiDizio();

 public slots:
  /// The close box and Esc act as Command2.
  void reject() override;

 protected:
  bool eventFilter(QObject* oggetto, QEvent* evento) override;

 private:
  static int LunghezzaDi(std::size_t lista) { return MinLunghezza + static_cast<int>(lista); }

  enum class Lavoro { Nessuno, Lettura, Ricostruzione, Importazione };

  void CreaListe();
  void CreaDizionari();
  void CreaAvanzamento();
  void CreaComandi();
  void Disponi();
  QLayout* RigaDiListe(int prima, int fine);
  QLayout* Stato();
  void Collega();

  void Inizia(Lavoro lavoro);
  void Finisci();
  bool Cedi();
  bool LeggiSezione(std::size_t lista, bool& intero);
  void NullaDaMostrare();
  void ApriDiSistema();
  void ApriPrivato();
  bool ApriEMostra(const Percorso& nome, std::int16_t lingua);
  bool Presente(const Percorso& nome);
  void RiaprePronto();
  void SegnaAperto();
  void ChiediParola();
  void AggiungiParola();
  void AvvisaListaPiena(std::size_t lista);
  void EliminaParola();
  void RicreaDizionario();
  void ScriviSulDisco();
  void SegueScrittura(std::size_t lista, std::size_t fatte);
  void ImportaListe();
  std::error_code ImportaLista(std::size_t lista);
  void CreaPrivato();
  void ApriEsistente(const Percorso& nome);
  void CancellaPrivato();

  void SvuotaListe();
  void AzzeraDidascalie();
  void SvuotaConteggi();
  void MostraNome();
  void MostraTotale();
  void ContaUnaParola(std::size_t lista, int variazione);
  void DipingiBarra(double parte, Colore colore);

  Dizionario& dizionario_;
  ListeDiParole parole_;
  std::int32_t TotaleParole = 0;
  std::int16_t ListaCorrente = 0;
  Booleano16 FermaLettura = Falso;
  Lavoro lavoro_ = Lavoro::Nessuno;
  QWidget* fuoco_ = nullptr;  // where the focus was when it began
  bool letto_ = false;        // the lists hold a dictionary
  Cadenza cadenza_;
};

}  // namespace telarium
