#pragma once

#include <QString>
#include <optional>
#include <string>
#include <string_view>

#include "platform/files.h"

// The one edge at which the texts of the core, in the code page, become Qt's and come back.
namespace telarium {

QString AQt(std::string_view testo);

/// "?" stands for what the code page cannot write.
std::string DaQt(const QString& testo);

/// A text as the title of a window, where Qt would take "[*]" for the mark of a modified file.
QString TitoloAQt(std::string_view testo);

/// A text as the caption of a menu entry, where "&" would mark a letter and a tab set a shortcut
/// off.
QString ComeVoceDiMenu(QString testo);

/// As DaQt; none when the code page cannot write it.
std::optional<std::string> DaQtEsatto(const QString& testo);

/// A text as a tool tip, none of it taken for markup.
QString ComeSuggerimento(const QString& testo);

QString PercorsoAQt(const Percorso& percorso);
Percorso PercorsoDaQt(const QString& percorso);

}  // namespace telarium
