#pragma once

#include <QCursor>
#include <QIcon>
#include <QString>

// The pictures that are compiled into the program, by their file names without the ending.
namespace telarium {

/// A toolbar or menu image, sharp at every scale factor.
QIcon Immagine(const char* nome);

/// A picture at its own size for a display of that ratio of device to logical pixels.
QPixmap Figura(const char* nome, double rapporto);

/// The hot spot of the picture "hand" in logical pixels.
inline constexpr QPoint PuntaDellaMano(11, 2);

/// A picture as a mouse pointer with its hot spot in logical pixels.
QCursor PuntatoreDi(const char* nome, QPoint punta, double rapporto);

}  // namespace telarium
