#pragma once

#include <QLocalServer>
#include <QLockFile>
#include <QString>
#include <functional>
#include <memory>
#include <optional>

#include "platform/files.h"

class QLocalSocket;

namespace telarium {

/// Sees to it that one desktop at a time works in a program folder: a lock file in that folder
/// (beside the user's temporary files when it takes none), and a local socket over which a later
/// start hands its crossword to the first one.
class UnicaIstanza {
 public:
  explicit UnicaIstanza(const Percorso& cartella);

  /// True for the first one, which from now on calls `riceve` with the file of each later start, or
  /// with an empty path when that has none.
  bool Prima(std::function<void(const Percorso&)> riceve);

  /// Hands a file to the first one. False when that does not answer within some seconds.
  bool Consegna(const Percorso& file) const;

 private:
  void Ascolta();
  bool Raggiungi(QLocalSocket& prima) const;

  QString presa_;  // the socket's path
  QLockFile blocco_;
  std::unique_ptr<QLocalServer> servente_;
  std::function<void(const Percorso&)> riceve_;
};

}  // namespace telarium
