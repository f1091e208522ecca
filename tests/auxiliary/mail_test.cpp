#include "auxiliary/mail.h"

#include "auxiliary/addresses.h"
#include "support/telarium_test.h"

namespace telarium {
namespace {

using MailTest = TelariumTest;

TEST_F(MailTest, SendsTheCrosswordAsItsFileLies) {
  for (const Percorso& name : {Percorso(), Percorso(NomeMaiSalvato), InFolder("manca.tlrm")}) {
    SetName(name);
    MandaSchema();
    EXPECT_EQ(user.TakeTexts().size(), 1u) << name;
  }
  EXPECT_TRUE(machine.mails.empty()) << "nothing is started";

  SetName(WriteFile("un \xC3\xA8.tlrm", "x"));
  PrendiStrumento(Strumento::CasellaNera);
  MandaSchema();
  EXPECT_EQ(user.TakeTexts(),
            std::vector<std::string>{"Un messaggio con il tuo schema di cruciverba allegato e' "
                                     "stato accodato per la spedizione correttamente"});
  EXPECT_EQ(PuntatoreMouse, 0);
  ASSERT_EQ(machine.mails.size(), 1u);
  const Mail& mail = machine.mails.front();
  EXPECT_EQ(mail.destinatario, "schemi@telarium.example");
  EXPECT_EQ(mail.oggetto, "Telarium - Invio schema " + TestoPercorso(NomeCruciverba));
  EXPECT_EQ(mail.testo,
            "Salve, in allegato spedisco il file di cruciverba da me creato. Resto in attesa di "
            "riceverne eventualmente altri realizzati da altri utilizzatori.\r\nCordiali saluti");
  EXPECT_EQ(mail.allegato, NomeCruciverba);

  machine.takesMail = false;
  MandaSchema();
  const auto told = user.TakeMessages();
  ASSERT_EQ(told.size(), 1u) << "and not that it is on its way";
  EXPECT_TRUE(told[0].testo.starts_with("Non \xE8 possibile preparare il messaggio"));
}

TEST_F(MailTest, RecommendsTheProgramToAFriend) {
  const Percorso guide = WriteFile("TELARIUM7.mht", "x");
  user.AnswerText("Zo\xEB");
  user.AnswerText(" a.b+c@posta.example ");
  ConsigliaTelarium();
  EXPECT_EQ(user.TakeTexts(),
            std::vector<std::string>{"Un messaggio con il tuo consiglio \xE8 stato accodato per la "
                                     "spedizione correttamente."});
  ASSERT_EQ(user.requests.size(), 2u);
  EXPECT_EQ(user.requests[0].predefinito, "Anonimo");
  ASSERT_EQ(machine.mails.size(), 1u);
  const Mail& mail = machine.mails.front();
  EXPECT_EQ(mail.destinatario, "a.b+c@posta.example");
  EXPECT_EQ(mail.oggetto, "Ti consiglio di scaricare Telarium e Ludarium");
  EXPECT_EQ(mail.testo,
            "Ciao, ho trovato molto carini questi 2 programmi freeware e te li consiglio.\r\nLi "
            "puoi scaricare dal sito : www.telarium.example/telarium/\r\nCordiali saluti\r\n\r\n"
            "Zo\xEB");
  EXPECT_EQ(mail.allegato, guide);
}

TEST_F(MailTest, WhatHasAnAtSignIsHandedOnAsAnAddress) {
  WriteFile("TELARIUM7.mht", "x");
  const std::pair<const char*, const char*> cases[] = {
      {"o'neil@x.example", "o'neil@x.example"},
      {"Anna B. <a@x.example>", "Anna B. <a@x.example>"},
      {"\"a b\"@x.example", "\"a b\"@x.example"},
      {"a@x.example, b@x.example", "a@x.example, b@x.example"},
      {"\xE8@x.example", "\xE8@x.example"},
      {"@", "@"},
      {"a@x\r\nBcc: b@x", "a@x Bcc: b@x"}};  // a second line would be another field
  for (const auto& [typed, handedOn] : cases) {
    user.AnswerText("Io");
    user.AnswerText(typed);
    ConsigliaTelarium();
    EXPECT_EQ(user.TakeTexts().size(), 1u);
    ASSERT_FALSE(machine.mails.empty()) << typed;
    EXPECT_EQ(machine.mails.back().destinatario, handedOn);
    machine.mails.clear();
  }
}

TEST_F(MailTest, RecommendsNothingWithoutANameAnAddressOrTheGuide) {
  for (const auto& name : {std::optional<std::string>(), std::optional<std::string>("")}) {
    user.AnswerText(name);
    ConsigliaTelarium();
  }
  EXPECT_TRUE(user.TakeTexts().empty());
  user.AnswerText("Io");
  user.AnswerText(std::nullopt);
  ConsigliaTelarium();
  EXPECT_EQ(user.TakeTexts(), std::vector<std::string>{"Casella postale non valida"});
  for (const char* bad : {"x", "", "a.b"}) {
    user.AnswerText("Io");
    user.AnswerText(bad);
    ConsigliaTelarium();
    EXPECT_EQ(user.TakeTexts(), std::vector<std::string>{"Casella postale non valida"}) << bad;
  }
  user.AnswerText("Io");
  user.AnswerText("a@b");
  ConsigliaTelarium();
  const auto told = user.TakeTexts();
  ASSERT_EQ(told.size(), 1u);
  EXPECT_NE(told[0].find("TELARIUM7.mht"), std::string::npos) << "there is none";
  EXPECT_TRUE(machine.mails.empty());
}

}  // namespace
}  // namespace telarium
