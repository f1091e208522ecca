#include "platform/qt/qt_machine.h"

#include <QDeadlineTimer>
#include <QDesktopServices>
#include <QEventLoop>
#include <QProcess>
#include <QSettings>
#include <QStandardPaths>
#include <QTimer>
#include <QUrl>
#include <algorithm>
#include <functional>

#include "platform/codepage.h"
#include "platform/common/fetch.h"
#include "platform/common/local_clock.h"
#include "platform/qt/child_process.h"
#include "platform/qt/qt_text.h"
#include "platform/temporary.h"

namespace telarium {
namespace {

// How long a program that hands its file on to another one is waited for: what takes longer is busy
// showing it.
constexpr std::chrono::milliseconds AttesaDiConsegna{500};
// A mail program is looked for by a long script, which tells only at its end that there is none.
constexpr std::chrono::milliseconds AttesaDellaPosta{2000};

// Waits for something that comes from another process. The windows go on meanwhile, and what the
// user does in them has its effect at once. False when it does not come in time.
bool Aspetta(const std::function<bool()>& fatto, std::chrono::milliseconds attesa) {
  constexpr std::chrono::milliseconds sguardo{10};
  const QDeadlineTimer termine(attesa);
  QEventLoop ciclo;
  QTimer orologio;
  QObject::connect(&orologio, &QTimer::timeout, &ciclo, [&] {
    if (fatto() || termine.hasExpired()) ciclo.quit();
  });
  orologio.start(sguardo);
  if (!fatto()) ciclo.exec();
  return fatto();
}

bool Presente(const char* programma) {
  return !QStandardPaths::findExecutable(QLatin1StringView(programma)).isEmpty();
}

// Runs a program that opens something; false when it could not be started or soon ended in error.
bool Consegna(const std::vector<std::string>& parole,
              std::chrono::milliseconds attesa = AttesaDiConsegna) {
  const ProcessoAvviato processo = Avvia(parole);
  if (processo.errore) return false;
  const auto finito = [&processo] {
    return processo.esito.wait_for(std::chrono::seconds(0)) == std::future_status::ready;
  };
  return !Aspetta(finito, attesa) || processo.esito.get() == 0;
}

// The word processor of an office suite; none without one.
std::optional<std::string> ProgrammaDiScrittura() {
  for (const char* programma : {"lowriter", "soffice", "libreoffice"}) {
    if (Presente(programma)) return programma;
  }
  return std::nullopt;
}

// A document of one text, each character by its code: none of them is a mark of the format then.
std::string InRtf(std::string_view testo) {
  constexpr std::string_view cifre = "0123456789abcdef";
  std::string documento = "{\\rtf1\\ansi\\ansicpg1252 ";
  for (const char carattere : testo) {
    const auto codice = static_cast<unsigned char>(carattere);
    documento += "\\'";
    documento += cifre[codice / 16];
    documento += cifre[codice % 16];
  }
  return documento + "}";
}

// The word processor takes the contents as a template, from which it makes a new document. It reads
// it in its own time, so the file stays until this program ends.
bool ConsegnaComeNuovo(const std::string& programma, const Percorso& nome,
                       std::string_view contenuto) {
  static const CartellaTemporanea cartella;
  const Percorso modello = cartella.Nome() / nome;
  if (cartella.Nome().empty() || ScriviFile(modello, contenuto, Permanenza::Provvisoria))
    return false;
  return Consegna({programma, "-n", modello.string()});
}

bool PaginaWeb(const Percorso& documento) {
  const std::string tipo = Maiuscole(documento.extension().string());
  return tipo == ".HTML" || tipo == ".HTM";
}

// A page that names no encoding is in the code page, where the word processors here take it for
// UTF-8: they get a copy that names it.
bool ConsegnaCopiaDellaPagina(const std::string& programma, const Percorso& pagina) {
  constexpr std::size_t massimo = 64u << 20;
  constexpr std::string_view codifica =
      R"(<meta http-equiv="Content-Type" content="text/html; charset=windows-1252">)";
  std::string testo;
  if (LeggiFile(pagina, massimo, testo) != EsitoLettura::Letto) return false;
  constexpr std::string_view testa = "<head>";
  const std::size_t dove = testo.find(testa);
  testo.insert(dove == std::string::npos ? 0 : dove + testa.size(), codifica);
  return ConsegnaComeNuovo(programma, pagina.filename(), testo);
}

// The program that the system has for a type of files or addresses; empty for none. Nothing when it
// does not tell, or not soon.
std::optional<QByteArray> ProgrammaPer(const char* tipo) {
  constexpr std::chrono::milliseconds pazienza{2000};
  QProcess domanda;
  domanda.setStandardInputFile(QProcess::nullDevice());
  domanda.start(QStringLiteral("xdg-mime"),
                {QStringLiteral("query"), QStringLiteral("default"), QLatin1StringView(tipo)},
                QIODevice::ReadOnly);
  if (!Aspetta([&domanda] { return domanda.state() == QProcess::NotRunning; }, pazienza)) {
    domanda.kill();
    domanda.waitForFinished();  // killed, it is only to be buried
    return std::nullopt;
  }
  const bool risposto = domanda.error() != QProcess::FailedToStart &&
                        domanda.exitStatus() == QProcess::NormalExit && domanda.exitCode() == 0;
  if (!risposto) return std::nullopt;
  return domanda.readAllStandardOutput().trimmed().toLower();
}

// Whether opening a web archive would show it: other browsers would save it again, or show its
// source.
bool ArchiviVisibili() {
  const QByteArray programma = ProgrammaPer("application/x-mimearchive").value_or(QByteArray());
  constexpr const char* mostrano[] = {"chrom", "edge", "brave", "vivaldi", "opera", "epiphany"};
  return std::any_of(std::begin(mostrano), std::end(mostrano),
                     [&](const char* nome) { return programma.contains(nome); });
}

bool ArchivioWeb(const Percorso& file) {
  const std::string tipo = Maiuscole(file.extension().string());
  return tipo == ".MHT" || tipo == ".MHTML";
}

// Opens a file or an address, both as the system's opener takes them.
bool ApriNelSistema(const std::string& cosa, const QUrl& url) {
  if (Presente("xdg-open")) return Consegna({"xdg-open", cosa});
  return QDesktopServices::openUrl(url);
}

std::string Codificato(const std::string& utf8) {
  return QUrl::toPercentEncoding(QString::fromStdString(utf8), "@").toStdString();
}

// A file name need not be text: each of its bytes by itself.
std::string Codificato(const Percorso& file) {
  return QByteArray::fromStdString(file.string()).toPercentEncoding("/").toStdString();
}

// xdg-email gives some mail programs the recipient decoded, between apostrophes of its own: behind
// one of ours a comma would begin another field, as an attachment. Both together never stand in one
// address; the apostrophe then reaches the program encoded.
std::string DestinatarioCodificato(const std::string& destinatario) {
  const bool rischioso =
      destinatario.find('\'') < destinatario.size() && destinatario.find(',') < destinatario.size();
  QByteArray codificato = QByteArray::fromStdString(Codificato(AUtf8(destinatario)));
  if (rischioso) codificato.replace("%27", "%2527");
  return codificato.toStdString();
}

// All of a mail as one address, in which no character is a mark of a shell's or of the address:
// the options of xdg-email would pass through an "echo" that takes the backslash for one. This is
// the address that it makes of them.
std::string IndirizzoDellaMail(const Mail& mail) {
  std::string indirizzo = "mailto:" + DestinatarioCodificato(mail.destinatario) +
                          "?subject=" + Codificato(AUtf8(mail.oggetto)) +
                          "&body=" + Codificato(AUtf8(mail.testo));
  std::error_code ignorato;
  if (mail.allegato)
    indirizzo += "&attach=" + Codificato(std::filesystem::absolute(*mail.allegato, ignorato));
  return indirizzo;
}

// Without a mail program xdg-email gives the mail to a browser, which takes it and does nothing.
bool PostaPresente() {
  const auto programma = ProgrammaPer("x-scheme-handler/mailto");
  return !programma || !programma->isEmpty() || qEnvironmentVariableIsSet("MAILER");
}

QSettings Impostazioni() {
  return QSettings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("Telarium"),
                   QStringLiteral("telarium"));
}

}  // namespace

std::chrono::year_month_day MacchinaQt::Oggi() {
  return OggiLocale();
}

std::error_code MacchinaQt::EseguiComando(const Percorso& programma,
                                          const std::vector<std::string>& argomenti) {
  std::vector<std::string> parole = {programma.string()};
  for (const std::string& argomento : argomenti)
    parole.push_back(AUtf8(argomento));
  return Avvia(parole).errore;
}

bool MacchinaQt::ApriProgramma(const std::vector<std::string>& parole) {
  return Consegna(parole);
}

bool MacchinaQt::ApriFile(const Percorso& file) {
  std::error_code ignorato;
  const Percorso intero = std::filesystem::absolute(file, ignorato);
  if (!std::filesystem::exists(intero, ignorato)) return false;
  if (ArchivioWeb(intero) && !ArchiviVisibili()) return false;
  return ApriNelSistema(intero.string(), QUrl::fromLocalFile(PercorsoAQt(intero)));
}

bool MacchinaQt::ApriIndirizzo(const std::string& indirizzo) {
  constexpr std::string_view ammessi[] = {"http://", "https://", "mailto:"};
  const bool ammesso =
      std::any_of(std::begin(ammessi), std::end(ammessi),
                  [&](std::string_view schema) { return indirizzo.starts_with(schema); });
  const QUrl url(AQt(indirizzo), QUrl::TolerantMode);
  return ammesso && url.isValid() && ApriNelSistema(url.toEncoded().toStdString(), url);
}

bool MacchinaQt::ApriInWord(const Percorso& documento) {
  const auto programma = ProgrammaDiScrittura();
  if (!programma || !FileOrdinario(documento)) return false;
  if (PaginaWeb(documento)) return ConsegnaCopiaDellaPagina(*programma, documento);
  return Consegna({*programma, documento.string()});
}

bool MacchinaQt::ScriviInWord(const std::string& testo) {
  const auto programma = ProgrammaDiScrittura();
  if (!programma) return false;
  return ConsegnaComeNuovo(*programma, "parola.rtf", InRtf(testo));
}

bool MacchinaQt::PreparaMail(const Mail& mail) {
  return PostaPresente() && Consegna({"xdg-email", IndirizzoDellaMail(mail)}, AttesaDellaPosta);
}

Prelevato MacchinaQt::Preleva(const std::string& indirizzo, const LimitiDiPrelievo& limiti,
                              const ProseguePrelievo& prosegue) {
  return PrelevaIndirizzo(indirizzo, limiti, prosegue);
}

std::optional<std::string> MacchinaQt::LeggiImpostazione(const std::string& chiave) {
  const QVariant valore = Impostazioni().value(AQt(chiave));
  if (!valore.isValid()) return std::nullopt;
  return DaQt(valore.toString());
}

void MacchinaQt::ScriviImpostazione(const std::string& chiave, const std::string& valore) {
  QSettings impostazioni = Impostazioni();
  impostazioni.setValue(AQt(chiave), AQt(valore));
  impostazioni.sync();  // the program may end at once
}

}  // namespace telarium
