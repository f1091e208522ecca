#include "history/journal_writer.h"

#include <algorithm>
#include <atomic>
#include <utility>

namespace telarium {
namespace {

using Orologio = std::chrono::steady_clock;

constexpr std::chrono::seconds TraDueConsolidamenti{1};
constexpr std::chrono::milliseconds AttesaMassima{1000};

}  // namespace

class FileDiGiornale {
 public:
  explicit FileDiGiornale(FileBloccato file) : file_(std::move(file)) {}

  std::error_code Guasto() const { return rotto_ ? errore_ : std::error_code(); }

  void Aggiungi(const std::string& byte) {
    if (!rotto_) Annota(file_.Aggiungi(byte));
  }
  // A disk that fails now will fail the next write too, or what it has lost is lost.
  std::error_code Consolida() { return rotto_ ? errore_ : file_.Consolida(); }
  void Libera() { file_.Libera(); }
  void Elimina() { file_.Elimina(); }

 private:
  void Annota(std::error_code errore) {
    errore_ = errore;
    rotto_ = static_cast<bool>(errore);
  }

  FileBloccato file_;
  std::error_code errore_;           // before rotto_ is set
  std::atomic<bool> rotto_ = false;  // never taken back
};

ScrittoreDiGiornali::ScrittoreDiGiornali()
    : scrive_([this](const std::stop_token& fine) { Scrivi(fine); }),
      consolida_([this](const std::stop_token& fine) { Consolida(fine); }) {}

ScrittoreDiGiornali::~ScrittoreDiGiornali() {
  for (std::jthread* const filo : {&scrive_, &consolida_}) {
    filo->request_stop();
    filo->join();
  }
}

ScrittoreDiGiornali::File ScrittoreDiGiornali::Prendi(FileBloccato file) {
  return std::make_shared<FileDiGiornale>(std::move(file));
}

void ScrittoreDiGiornali::Aggiungi(const File& file, std::string byte) {
  {
    std::unique_lock blocco(mutex_);
    if (!lento_) lento_ = !cambiato_.wait_for(blocco, AttesaMassima, [&] { return coda_.empty(); });
  }
  Incarica({file, std::move(byte)});
}

void ScrittoreDiGiornali::Chiudi(const File& file) {
  Incarica({file, {}, true});
}

void ScrittoreDiGiornali::Elimina(const File& file, const File& dopo) {
  Attendi();
  {
    const std::lock_guard blocco(mutex_);
    daScambiare_.push_back({file, dopo});
  }
  cambiato_.notify_all();
}

void ScrittoreDiGiornali::Attendi() {
  std::unique_lock blocco(mutex_);
  cambiato_.wait(blocco, [&] { return coda_.empty(); });
}

std::error_code ScrittoreDiGiornali::Guasto(const File& file) {
  return file->Guasto();
}

void ScrittoreDiGiornali::Incarica(Incarico incarico) {
  {
    const std::lock_guard blocco(mutex_);
    coda_.push_back(std::move(incarico));
  }
  cambiato_.notify_all();
}

void ScrittoreDiGiornali::Scrivi(const std::stop_token& fine) {
  std::unique_lock blocco(mutex_);
  // After the end is asked for it goes on until nothing is left.
  while (cambiato_.wait(blocco, fine, [&] { return !coda_.empty(); })) {
    const auto& [file, byte, chiusura] = coda_.front();  // it stays when others come behind it
    blocco.unlock();
    chiusura ? file->Libera() : file->Aggiungi(byte);
    blocco.lock();
    if (!chiusura && std::ranges::find(daConsolidare_, file) == daConsolidare_.end())
      daConsolidare_.push_back(file);
    coda_.pop_front();
    if (coda_.empty()) lento_ = false;
    cambiato_.notify_all();
  }
}

// Of its own, since a disk may take its time and no record is to wait for it.
void ScrittoreDiGiornali::Consolida(const std::stop_token& fine) {
  auto prossimo = Orologio::now();
  std::unique_lock blocco(mutex_);
  const auto qualcosa = [&] { return !daConsolidare_.empty() || !daScambiare_.empty(); };
  while (cambiato_.wait(blocco, fine, qualcosa)) {
    cambiato_.wait_until(blocco, fine, prossimo, [] { return false; });
    const auto file = std::exchange(daConsolidare_, {});
    const auto scambi = std::exchange(daScambiare_, {});
    blocco.unlock();
    Consolida(file, scambi);
    prossimo = Orologio::now() + TraDueConsolidamenti;
    blocco.lock();
  }
}

void ScrittoreDiGiornali::Consolida(const std::vector<File>& file,
                                    const std::vector<Scambio>& scambi) {
  for (const File& uno : file)
    uno->Consolida();
  for (const auto& [uno, dopo] : scambi) {
    if (!dopo->Consolida()) uno->Elimina();
    uno->Libera();
  }
}

}  // namespace telarium
