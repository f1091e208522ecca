#include "telar/arguments.h"

#include <algorithm>
#include <charconv>

namespace telarium::telar {
namespace {

const Opzione& Trova(const std::vector<Opzione>& ammesse, std::string_view nome) {
  const auto trovata = std::find_if(ammesse.begin(), ammesse.end(),
                                    [&](const Opzione& una) { return una.nome == nome; });
  if (trovata == ammesse.end()) {
    throw ArgomentiErrati("opzione sconosciuta: " + std::string(nome));
  }
  return *trovata;
}

}  // namespace

std::string Argomenti::Valore(std::string_view opzione, std::string_view altrimenti) const {
  const auto trovata = opzioni.find(opzione);
  return trovata == opzioni.end() ? std::string(altrimenti) : trovata->second.back();
}

std::vector<std::string> Argomenti::Valori(std::string_view opzione) const {
  const auto trovata = opzioni.find(opzione);
  return trovata == opzioni.end() ? std::vector<std::string>() : trovata->second;
}

std::int64_t Argomenti::Numero(std::string_view opzione, std::int64_t minimo,
                               std::int64_t altrimenti) const {
  if (!Ha(opzione)) return altrimenti;
  const auto numero = NumeroIntero(Valore(opzione));
  if (!numero || *numero < minimo) {
    throw ArgomentiErrati(std::string(opzione) + " richiede un numero intero da " +
                          std::to_string(minimo) + " in su");
  }
  return *numero;
}

Argomenti Separa(const std::vector<std::string>& parole, const std::vector<Opzione>& ammesse) {
  Argomenti argomenti;
  bool soloLiberi = false;
  for (std::size_t i = 0; i < parole.size(); ++i) {
    const std::string& parola = parole[i];
    if (soloLiberi || parola.size() < 2 || parola.front() != '-') {
      argomenti.liberi.push_back(parola);
      continue;
    }
    if (parola == "--") {
      soloLiberi = true;
      continue;
    }
    const std::size_t uguale = parola.find('=');
    const Opzione& opzione = Trova(ammesse, std::string_view(parola).substr(0, uguale));
    const bool conValore = !opzione.valore.empty();
    if (uguale != std::string::npos && !conValore) {
      throw ArgomentiErrati(std::string(opzione.nome) + " non ammette un valore");
    }
    std::string valore;
    if (uguale != std::string::npos) {
      valore = parola.substr(uguale + 1);
    } else if (conValore) {
      if (++i == parole.size())
        throw ArgomentiErrati(std::string(opzione.nome) + " richiede un valore");
      valore = parole[i];
    }
    argomenti.opzioni[std::string(opzione.nome)].push_back(std::move(valore));
  }
  return argomenti;
}

std::optional<std::int64_t> NumeroIntero(std::string_view testo) {
  std::int64_t numero = 0;
  const char* const fine = testo.data() + testo.size();
  const auto [letto, errore] = std::from_chars(testo.data(), fine, numero);
  if (errore != std::errc() || letto != fine || testo.front() == '-') return std::nullopt;
  return numero;
}

}  // namespace telarium::telar
