#pragma once

#include <string_view>

#include <gtest/gtest.h>

#include "clues/encyclopedia.h"
#include "clues/encyclopedia_writer.h"
#include "platform/codepage.h"

namespace telarium {

/// Makes the encyclopedia of the test's program folder from a clue list: word TAB F or D TAB clue,
/// in UTF-8.
inline void MakeStore(std::string_view list) {
  std::vector<VoceDiLista> entries;
  ASSERT_EQ(AggiungiVoci(list, entries).tralasciate, 0);
  ASSERT_EQ(ScriviEnciclopedia(std::move(entries)).errore, "");
}

/// The easy, or the hard, family of a word in UTF-8; "-" for a null one, "?" for an unknown word.
inline std::string Stored(std::string_view word, bool hard = false) {
  const EnciclopediaAperta store = ApriEnciclopedia();
  if (!store->CercaParola(word)) return "?";
  const auto family = hard ? store->LeggiDifficili() : store->LeggiFacili();
  return family ? AUtf8(*family) : "-";
}

}  // namespace telarium
