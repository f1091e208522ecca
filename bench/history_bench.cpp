#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <malloc.h>
#include <thread>
#include <vector>

#include "history/chronology.h"
#include "model/crossword_writer.h"
#include "platform/digest.h"
#include "platform/temporary.h"
#include "platform/text.h"
#include "support/drawn_crossword.h"

// Measures what undo, redo and recovery cost the main thread on the largest grid, with a clue at
// every other cell; single calls, since the slowest ones count.
namespace telarium {
namespace {

constexpr int Steps = 10'000;

// Milliseconds of each call, the quickest first, with pauses before them.
std::vector<double> Times(int calls, const std::function<void(int)>& call,
                          std::chrono::milliseconds pause = {}) {
  std::vector<double> times;
  for (int i = 0; i < calls; ++i) {
    std::this_thread::sleep_for(pause);
    const auto start = std::chrono::steady_clock::now();
    call(i);
    const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - start;
    times.push_back(time.count());
  }
  std::sort(times.begin(), times.end());
  return times;
}

void Row(const char* what, const std::vector<double>& times, const char* wanted) {
  const auto part = [&](std::size_t hundredths) {
    return times[std::min(times.size() - 1, times.size() * hundredths / 100)];
  };
  std::printf("| %s | %.3f | %.3f | %s |\n", what, part(50), part(99), wanted);
}

Cruciverba Largest() {
  Cruciverba crossword =
      DrawnCrossword(std::vector<std::string>(MaxRighe, std::string(MaxColonne, '.')));
  for (int c = 1; c <= MaxColonne; ++c) {
    for (int r = 1; r <= MaxRighe; r += 2)
      crossword.definizioni.Imposta(Unisci("Una definizione di trenta lettere ", c), c, r, 1);
  }
  return crossword;
}

void ChangeCell(Documento& document, int i) {
  document.Modifica("Lettera", [i](Cruciverba& crossword) {
    ScriviCarattere(crossword, {1 + i % MaxColonne, 1 + i / MaxColonne % MaxRighe},
                    static_cast<char>('A' + i % 25));
  });
}

void Fill(Documento& document, int i) {
  document.Modifica("Estrazione automatica", [i](Cruciverba& crossword) {
    for (int c = 1; c <= MaxColonne; ++c) {
      for (int r = 1; r <= MaxRighe; ++r)
        ScriviCarattere(crossword, {c, r}, static_cast<char>('A' + (c * r + i) % 25));
    }
  });
}

void Open(Documento& document, const Cruciverba& crossword, const Percorso& name) {
  document.Sostituisci("Apertura", {crossword, {name, crossword, 1, false}, false});
}

int Main() {
  const CartellaTemporanea folder;
  const Cruciverba crossword = Largest();
  const auto clock = [] {
    return std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now());
  };
  std::printf("| 53x30, ms | median | 99 of 100 | wanted |\n|---|---|---|---|\n");
  Documento plain;
  Open(plain, crossword, "file");
  Row("a cell without history", Times(Steps, [&](int i) { ChangeCell(plain, i); }), "");
  {
    Documento document;
    Cronologia history(document, folder.Nome(), clock);
    Open(document, crossword, "file");
    const std::size_t before = ::mallinfo2().uordblks;
    Row("a cell", Times(Steps, [&](int i) { ChangeCell(document, i); }), "");
    const std::size_t bytes = ::mallinfo2().uordblks - before;
    Row("undo of a cell", Times(Steps, [&](int) { history.Annulla(); }), "");
    Row("redo of a cell", Times(Steps, [&](int) { history.Ripeti(); }), "");
    Row("a cell, a hundred a second",
        Times(
            300, [&](int i) { ChangeCell(document, i + 1); }, std::chrono::milliseconds(10)),
        "2 more at most");
    std::printf("| memory of a step of a cell, bytes | %zu | | under 4096 |\n", bytes / Steps);
  }
  {
    Documento document;
    Cronologia history(document, folder.Nome(), clock);
    Row("opening with its 10,000 steps", Times(1, [&](int) { Open(document, crossword, "file"); }),
        "");
    Row("opening without",
        Times(200, [&](int i) { Open(document, crossword, "file" + std::to_string(i)); }), "");
    Row("a fill", Times(200, [&](int i) { Fill(document, i); }), "");
    Row("undo and redo of a fill",
        Times(200,
              [&](int) {
                history.Annulla();
                history.Ripeti();
              }),
        "under 16 each");
    Row("a save under another name",
        Times(20,
              [&](int i) {
                document.Registra({"other" + std::to_string(i), document.Valore(), 1, false});
              }),
        "");
  }
  Row("looking for lost work, 10,000 steps",
      Times(3, [&](int) { ArchivioDelleCronologie(folder.Nome()).LavoriPersi(); }), "");
  return 0;
}

}  // namespace
}  // namespace telarium

int main() {
  return telarium::Main();
}
