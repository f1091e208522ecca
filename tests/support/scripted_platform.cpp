#include "support/scripted_platform.h"

#include <utility>

#include <gtest/gtest.h>

#include "platform/codepage.h"

namespace telarium {
namespace {

template <class T>
std::optional<T> TakeFirst(std::deque<T>& queue) {
  if (queue.empty()) return std::nullopt;
  const T first = queue.front();
  queue.pop_front();
  return first;
}

}  // namespace

std::vector<Messaggio> ScriptedUser::TakeMessages() {
  return std::exchange(messages_, {});
}

std::vector<std::string> ScriptedUser::TakeTexts() {
  std::vector<std::string> texts;
  for (Messaggio& message : TakeMessages())
    texts.push_back(std::move(message.testo));
  return texts;
}

void ScriptedUser::VerifyNothingLeft() {
  for (const Messaggio& message : messages_) {
    ADD_FAILURE() << "nobody looked at the message: " << AUtf8(message.testo);
  }
  EXPECT_TRUE(answers_.empty()) << "an answer was prepared for a question that never came";
  EXPECT_TRUE(colours.empty()) << "a colour was prepared for a chooser that never came";
  EXPECT_TRUE(textAnswers_.empty()) << "a text was prepared for an input box that never came";
  EXPECT_TRUE(deadEndAnswers_.empty()) << "an answer was prepared for a dead end that never came";
}

Risposta ScriptedUser::MostraMessaggio(const Messaggio& messaggio) {
  messages_.push_back(messaggio);
  if (messaggio.pulsanti == Pulsanti::Ok) return Risposta::Ok;
  const auto answer = TakeFirst(answers_);
  if (!answer) ADD_FAILURE() << "a question nobody expected: " << AUtf8(messaggio.testo);
  return answer.value_or(Risposta::Annulla);
}

std::optional<std::string> ScriptedUser::ChiediTesto(const RichiestaDiTesto& richiesta) {
  requests.push_back(richiesta);
  offeredTick = richiesta.spunta ? std::optional(richiesta.spunta->scelta) : std::nullopt;
  if (richiesta.spunta && tick) richiesta.spunta->scelta = *tick;
  const auto answer = TakeFirst(textAnswers_);
  if (!answer) ADD_FAILURE() << "an input box nobody expected: " << AUtf8(richiesta.richiesta);
  return answer.value_or(std::nullopt);
}

std::unique_ptr<Attesa> ScriptedUser::IniziaAttesa(const std::string& testo) {
  struct Wait : Attesa {
    explicit Wait(bool patient) : patient_(patient) {}
    bool Prosegue(std::size_t) override { return patient_; }
    bool ProsegueFino(double) override { return patient_; }
    bool patient_;
  };
  waits.push_back(testo);
  return std::make_unique<Wait>(patient);
}

Colore ScriptedUser::ScegliColore(Colore) {
  const auto colour = TakeFirst(colours);
  if (!colour) ADD_FAILURE() << "a colour chooser nobody expected";
  return colour.value_or(NessunColore);
}

Risposta ScriptedUser::ChiediVicoloCieco(const std::string& testo) {
  messages_.push_back({.testo = testo, .pulsanti = Pulsanti::SiNoAnnulla});
  auto answer = TakeFirst(deadEndAnswers_);
  if (!answer) answer = deadEndAnswer_;
  if (!answer) ADD_FAILURE() << "a dead end nobody expected: " << AUtf8(testo);
  return answer.value_or(Risposta::Annulla);
}

bool ScriptedPrinter::Carattere(std::string_view nome) {
  if (nome == refused) return false;
  typeface = nome;
  return true;
}

std::unique_ptr<LavoroDiStampa> ScriptedPrinter::IniziaLavoro(const std::string& nome) {
  if (givenUp) return nullptr;
  jobs.push_back(nome);
  return std::make_unique<RecordingJob>(printed);
}

double ScriptedMachine::Casuale() {
  if (whenDrawing) whenDrawing();
  return TakeFirst(draws).value_or(random.Prossimo());
}

std::error_code ScriptedMachine::EseguiComando(const Percorso& programma,
                                               const std::vector<std::string>&) {
  started.push_back(programma.string());
  return startError;
}

bool ScriptedMachine::ApriProgramma(const std::vector<std::string>& parole) {
  tried.push_back(parole.front());
  return parole.front() == program;
}

bool ScriptedMachine::ApriFile(const Percorso& file) {
  opened.push_back(file.string());
  return opens && (unshown.empty() || file.extension() != unshown);
}

bool ScriptedMachine::ApriIndirizzo(const std::string& indirizzo) {
  opened.push_back(indirizzo);
  return opens;
}

bool ScriptedMachine::ApriInWord(const Percorso& documento) {
  if (hasWord) inWord.push_back(documento.string());
  return hasWord;
}

bool ScriptedMachine::ScriviInWord(const std::string& testo) {
  written.push_back(testo);
  return opens;
}

bool ScriptedMachine::PreparaMail(const Mail& mail) {
  mails.push_back(mail);
  return takesMail;
}

std::optional<std::string> ScriptedMachine::LeggiImpostazione(const std::string& chiave) {
  const auto setting = settings.find(chiave);
  return setting == settings.end() ? std::nullopt : std::optional(setting->second);
}

Prelevato ScriptedMachine::Preleva(const std::string& indirizzo, const LimitiDiPrelievo& limiti,
                                   const ProseguePrelievo& prosegue) {
  fetched.push_back(indirizzo);
  limits = limiti;
  if (prosegue && !prosegue(0)) return {};
  const auto page = pages.find(indirizzo);
  const auto found = page == pages.end() ? fetches : page->second;
  return {.byte = found, .causa = found ? "" : failure};
}

}  // namespace telarium
