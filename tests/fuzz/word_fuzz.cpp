#include <algorithm>

#include "dictionary/dictionary_writer.h"
#include "dictionary/maintenance.h"
#include "dictionary/masked_search.h"
#include "dictionary/sorted_words.h"
#include "fuzz/fuzz_target.h"
#include "platform/check.h"

using namespace telarium;

namespace {

// What was written is found again: the different words of that length, in order.
void CheckSection(const std::vector<std::string>& list, int length) {
  std::vector<std::string> expected = list;
  std::erase_if(expected, [&](const std::string& word) {
    return word.size() != static_cast<std::size_t>(length);
  });
  expected.erase(std::unique(expected.begin(), expected.end()), expected.end());
  std::vector<std::string> found;
  CercaParole(IlDizionario(), std::string(static_cast<std::size_t>(length), ' '),
              [&](std::string_view word) { found.emplace_back(word); });
  Verifica(found == expected, "other words than those of the list");
}

}  // namespace

// A plain list of words goes the ways of the import and of the console into a dictionary.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  StartFresh();
  const std::string_view input = TextOf(data, size);
  const int length = MinLunghezza + static_cast<int>(size % 13);
  const Percorso file = CartellaProgramma / (std::to_string(length) + ".txt");
  if (ScriviFile(file, input, Permanenza::Provvisoria)) return 0;
  ListeDiParole lists;
  AggiungiLista(input, lists);
  OrdinaListe(lists);
  std::error_code error;
  auto imported = LeggiListaDaImportare(file, error);
  Verifica(imported.has_value(), "not imported");
  auto& list = lists[static_cast<std::size_t>(length - MinLunghezza)];
  InserisciParole(list, std::move(imported->parole));
  for (std::size_t i = 1; i < list.size(); ++i)
    Verifica(ConfrontaItaliano(list[i - 1], list[i]) <= 0, "not sorted");
  if (!OneIn(4, input)) return 0;
  Verifica(ScriviDizionario(IlDizionario().PercorsoDizionario(), lists).errore.empty(),
           "not written");
  Verifica(ApriDizionario(IlDizionario()), "not opened");
  for (int each = MinLunghezza; each <= MaxLunghezza; ++each)
    CheckSection(lists[static_cast<std::size_t>(each - MinLunghezza)], each);
  return 0;
}
