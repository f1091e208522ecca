#pragma once

#include <cstdint>

#include "platform/user.h"

// The mouse pointer and the tool that it is.
namespace telarium {

/// What the mouse buttons turn cells into.
enum class Strumento { Nessuno, CasellaNera, CasellaBianca };

/// The tool in hand. It lasts until the pointer gets a shape that is not its own.
Strumento StrumentoAttivo();

/// Takes a tool up, or puts it down; the pointer has its shape.
void PrendiStrumento(Strumento strumento);

/// Shape of the mouse pointer, a value of platform/user.h.
extern const std::int16_t& PuntatoreMouse;

/// Gives the pointer a shape, which puts the tool down.
void ImpostaPuntatoreMouse(int forma);

/// The pointer has a shape of platform/user.h for as long as one of these lives, then it is the
/// arrow.
class FormaDelPuntatore {
 public:
  explicit FormaDelPuntatore(int forma);
  ~FormaDelPuntatore();
  FormaDelPuntatore(const FormaDelPuntatore&) = delete;
  FormaDelPuntatore& operator=(const FormaDelPuntatore&) = delete;
};

/// The hourglass, likewise.
class Clessidra : public FormaDelPuntatore {
 public:
  Clessidra();
};

}  // namespace telarium
