#pragma once

#include <cstdint>

// The page to read in which the grid is a picture of the main window.
namespace telarium {

/// Width in pixels at which the page shows the picture; 3/4 of it is the height.
extern std::int16_t LarghezzaPicture;

/// Writes the picture and telarium_html.html into the program folder and opens the page in the
/// user's browser. A failure is told. Without a grid nothing happens.
void StampaHTML();

/// The menu entries of its sizes.
void StampaHTMLLarga(int larghezza);

}  // namespace telarium
