#include "history/journal_writer.h"

#include <algorithm>
#include <atomic>
#include <utility>

namespace telarium {
namespace {

using Orologio = std::chrono::steady_clock;

constexpr std::chrono::seconds TraDueConsolidamenti{1};
constexpr std::chrono::milliseconds AttesaMassima{250};

}  // namespace

class FileDiGiornale {
 public:
  explicit FileDiGiornale(FileBloccato file) : file_(std::move(file)) {}

  std::error_code Guasto() const { return rotto_ ? errore_ : std::error_code(); }

  void Aggiungi(const std::string& byte) {
    if (!rotto_) Annota(file_.Aggiungi(byte));
  }
  // A disk that fails now will fail the next write too, or what it has lost is lost.
  void Consolida() { file_.Consolida(); }
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
  Incarica({Opera::Aggiunta, file, std::move(byte)});
}

void ScrittoreDiGiornali::Chiudi(const File& file) {
  Incarica({Opera::Chiusura, file});
}

void ScrittoreDiGiornali::Elimina(const File& file, const File& dopo) {
  Incarica({Opera::Eliminazione, file, {}, dopo});
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
    const Incarico& incarico = coda_.front();  // stays where it is when others come behind it
    blocco.unlock();
    Esegui(incarico);
    blocco.lock();
    if (incarico.opera == Opera::Aggiunta && std::find(daConsolidare_.begin(), daConsolidare_.end(),
                                                       incarico.file) == daConsolidare_.end())
      daConsolidare_.push_back(incarico.file);
    coda_.pop_front();
    if (coda_.empty()) lento_ = false;
    cambiato_.notify_all();
  }
}

void ScrittoreDiGiornali::Esegui(const Incarico& incarico) {
  switch (incarico.opera) {
    case Opera::Aggiunta:
      return incarico.file->Aggiungi(incarico.byte);
    case Opera::Chiusura:
      return incarico.file->Libera();
    case Opera::Eliminazione:
      if (!incarico.dopo->Guasto()) {
        incarico.dopo->Consolida();
        incarico.file->Elimina();
      }
      incarico.file->Libera();
  }
}

void ScrittoreDiGiornali::Consolida(const std::stop_token& fine) {
  auto prossimo = Orologio::now();
  std::unique_lock blocco(mutex_);
  while (cambiato_.wait(blocco, fine, [&] { return !daConsolidare_.empty(); })) {
    cambiato_.wait_until(blocco, fine, prossimo, [] { return false; });
    const std::vector<File> questi = std::exchange(daConsolidare_, {});
    blocco.unlock();
    for (const File& file : questi)
      file->Consolida();
    prossimo = Orologio::now() + TraDueConsolidamenti;
    blocco.lock();
  }
}

}  // namespace telarium
