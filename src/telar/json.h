#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace telarium::telar {

/// Puts JSON together, piece by piece. Texts are in the code page and become UTF-8.
class Json {
 public:
  void Apri(char parentesi);  // '{' or '['
  void Chiudi();
  /// The name of what comes next in an object.
  void Nome(std::string_view nome);
  void Testo(std::string_view testo);
  void Numero(int numero);
  /// A value that is JSON as it is, as a number in decimal.
  void Crudo(std::string_view valore);

  const std::string& Tutto() const { return testo_; }

 private:
  void Separa();

  std::string testo_;
  std::vector<char> aperte_;
  bool daSeparare_ = false;  // a value stands before in the same object or list
};

}  // namespace telarium::telar
