#include "history/history_walk.h"

#include <gtest/gtest.h>

#include "history/file_state.h"

namespace telarium {
namespace {

constexpr char Cells[] = "ABC*.";

}  // namespace

HistoryWalk::HistoryWalk(const Percorso& files, const Percorso& steps, unsigned seed)
    : session_(files, steps), chance_(seed) {
  for (int i = 0; i < 4; ++i) {
    session_.Write("file" + std::to_string(i),
                   ContenutoDelFile(DrawnCrossword(std::vector<std::string>(
                                        5, std::string(static_cast<std::size_t>(i) + 4, '.'))))
                       .value());
  }
  New();
}

std::string HistoryWalk::State() const {
  return names_.at(crossword_) + ' ' + Take().value;
}

bool HistoryWalk::Unsaved() const {
  const FileDelCruciverba& file = session_.Document().Stato().file;
  std::string bytes;
  const bool read = LeggiFile(file.nome, MaxByteCruciverba, bytes) == EsitoLettura::Letto;
  return DiversoDalFile(session_.Value(), file) &&
         !(read && bytes == ContenutoDelFile(session_.Value()));
}

void HistoryWalk::Step() {
  static constexpr struct {
    int weight;
    void (HistoryWalk::*command)();
  } commands[] = {
      {30, &HistoryWalk::ChangeCell}, {12, &HistoryWalk::ChangeClue},
      {5, &HistoryWalk::ChangeMuch},  {6, &HistoryWalk::ChangeRest},
      {4, &HistoryWalk::Open},        {2, &HistoryWalk::New},
      {5, &HistoryWalk::Save},        {1, &HistoryWalk::WriteFromOutside},
      {20, &HistoryWalk::Undo},       {12, &HistoryWalk::Redo},
      {2, &HistoryWalk::GoTo},        {1, &HistoryWalk::Restart},
  };
  int chosen = Below(100);
  for (const auto& [weight, command] : commands) {
    if ((chosen -= weight) < 0) return (this->*command)();
  }
}

Casella HistoryWalk::AnyCell() {
  const Cruciverba& crossword = session_.Value();
  const int column = 1 + Below(crossword.colonne);
  return {column, 1 + Below(crossword.righe)};
}

void HistoryWalk::Check(const Shot& expected, const char* after) {
  crossword_ = expected.crossword;
  const StatoDelDocumento& state = session_.Document().Stato();
  EXPECT_TRUE(Take() == expected) << "another crossword after " << after;
  EXPECT_EQ(state.file.nome.filename().string(), names_[crossword_]) << after;
  EXPECT_EQ(state.modificato, DiversoDalFile(state.cruciverba, state.file)) << after;
}

template <class Command>
void HistoryWalk::Change(Command command) {
  const Shot before = Take();
  if (!session_.Document().Modifica("Passo", command)) return;
  undo_.push_back(before);
  redo_.clear();
}

void HistoryWalk::ChangeCell() {
  const Casella cell = AnyCell();
  const char letter = Cells[Below(sizeof Cells - 1)];
  Change([&](Cruciverba& crossword) { ScriviCarattere(crossword, cell, letter); });
}

void HistoryWalk::ChangeClue() {
  const Casella cell = AnyCell();
  const std::string clue(static_cast<std::size_t>(Below(40)), 'd');
  const int direction = 1 + Below(2);
  Change([&](Cruciverba& crossword) {
    crossword.definizioni.Imposta(clue, cell.colonna, cell.riga, direction);
  });
}

void HistoryWalk::ChangeMuch() {
  const Shot before = Take();
  {
    const PassoUnico step(session_.Document(), "Riempimento");
    for (int i = 0; i < 10; ++i)
      session_.Letter(AnyCell(), Cells[Below(sizeof Cells - 1)]);
  }
  if (Take() == before) return;
  undo_.push_back(before);
  redo_.clear();
}

void HistoryWalk::ChangeRest() {
  const Casella cell = AnyCell();
  const int what = Below(4);
  const int number = 1 + Below(20);
  Change([&](Cruciverba& crossword) {
    if (what == 0) Ridimensiona(crossword, number + 3, number + 2);
    if (what == 1) crossword.colori.Imposta(number, cell.colonna, cell.riga);
    if (what == 2) crossword.intestazione.Proprio()[0] = "Autore     : " + std::to_string(number);
    if (what == 3) crossword.laboratorio.Proprio().proprie.emplace_back("PAROLA");
  });
}

void HistoryWalk::Opened(const Shot& before, bool wasOpen) {
  ++crossword_;
  names_[crossword_] = session_.Document().Stato().file.nome.filename().string();
  redo_.clear();
  if (wasOpen) undo_.push_back(before);
}

void HistoryWalk::Open() {
  const bool wasOpen = !session_.Document().Stato().file.nome.empty();
  const Shot before = Take();
  if (session_.Open(FileName())) Opened(before, wasOpen);
}

void HistoryWalk::New() {
  const bool wasOpen = !session_.Document().Stato().file.nome.empty();
  const Shot before = Take();
  session_.New({"....", "....", "...."});
  Opened(before, wasOpen);
}

void HistoryWalk::Save() {
  const bool elsewhere = names_[crossword_].starts_with("Nuovo") || Below(4) == 0;
  const std::string name = elsewhere ? FileName() : names_[crossword_];
  session_.Save(name);
  names_[crossword_] = name;
}

void HistoryWalk::WriteFromOutside() {
  session_.Write(
      FileName(),
      ContenutoDelFile(DrawnCrossword({"....", std::string(4, Cells[Below(3)])})).value());
}

void HistoryWalk::Undo() {
  if (undo_.empty()) return;
  redo_.push_back(Take());
  session_.History().Annulla();
  Check(undo_.back(), "undo");
  undo_.pop_back();
}

void HistoryWalk::Redo() {
  if (redo_.empty()) return;
  undo_.push_back(Take());
  session_.History().Ripeti();
  Check(redo_.back(), "redo");
  redo_.pop_back();
}

// Where it leads the plain way does not know the states around.
void HistoryWalk::GoTo() {
  const Linea& line = *session_.History().LineaAperta();
  const auto place = static_cast<std::size_t>(Below(static_cast<int>(line.Quanti())));
  session_.History().VaiA(place);
  Check({crossword_, DifferenzaTra({}, line[place].cruciverba)}, "going there");
  undo_.clear();
  redo_.clear();
}

// The file of the open line gives it back, and what was not saved is offered.
void HistoryWalk::Restart() {
  if (!restarts) return;
  const Linea line = *session_.History().LineaAperta();
  const Shot before = Take();
  const Percorso name = session_.Document().Stato().file.nome;
  const bool unsaved = Unsaved();
  session_.Restart();
  undo_.clear();
  redo_.clear();

  const Percorso folder = session_.History().Archivio().Cartella();
  bool same = false;
  for (const Percorso& file : ElencaFile(folder, "*.passi")) {
    const auto read = ArchivioDelleCronologie::Apri(folder / file);
    if (!read || read->giornale.linea.Quanti() != line.Quanti()) continue;
    const Linea& its = read->giornale.linea;
    bool equal = its.Posto() == line.Posto() && its.PostoDelFile() == line.PostoDelFile();
    for (std::size_t i = 0; equal && i < line.Quanti(); ++i)
      equal = its[i] == line[i];
    same |= equal;
  }
  EXPECT_TRUE(same || line.Quanti() == 1) << "no file holds the line";

  bool recovered = false;
  for (const LavoroPerso& lost : session_.Lost()) {
    if (lost.nome != name || DifferenzaTra({}, lost.cruciverba) != before.value) continue;
    recovered = session_.History().Recupera(lost);
    break;
  }
  EXPECT_EQ(recovered, unsaved);
  if (recovered) {
    Check(before, "recovery");
  } else {
    New();
  }
}

}  // namespace telarium
