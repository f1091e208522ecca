#pragma once

#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <optional>
#include <stop_token>
#include <thread>

#include "platform/console/console_platform.h"

namespace telarium::telar {

/// Watches over a command that takes long: from now on Ctrl+C, the end of its time if it has one,
/// and whatever else there may be (`altro`, asked in a thread of its own) request within 20 ms a
/// stop of what it runs.
class Sorveglianza {
 public:
  using Istante = std::chrono::steady_clock::time_point;

  explicit Sorveglianza(const UtenteConsole& utente, std::optional<Istante> fine = {},
                        std::function<bool()> altro = {});

  std::stop_token Segnale() const { return richiesta_.get_token(); }
  bool Fermata() const { return richiesta_.stop_requested(); }
  /// Of a stop: whether it was Ctrl+C that requested it.
  bool DaChiUsa() const { return utente_.Interrotto(); }

 private:
  void Guarda();
  void Attendi(std::stop_token basta);

  const UtenteConsole& utente_;
  const std::optional<Istante> fine_;
  const std::function<bool()> altro_;
  std::stop_source richiesta_;
  std::mutex serratura_;
  std::condition_variable_any sveglia_;
  std::jthread guardia_;  // last, so that it ends before what it uses
};

}  // namespace telarium::telar
