#include "clues/encyclopedia.h"

#include "platform/codepage.h"

namespace telarium {

bool Enciclopedia::ContieneDefinizione(std::string_view definizione) {
  const auto facili = LeggiFacili();
  return facili && Maiuscole(*facili).find(Maiuscole(definizione)) != std::string::npos;
}

}  // namespace telarium
