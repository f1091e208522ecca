#pragma once

namespace telarium {

/// The file of the guide in the program folder, a web archive, and its twin for browsers that show
/// none.
inline constexpr const char* FileAiuto = "TELARIUM7.mht";
inline constexpr const char* GemelloAiuto = "TELARIUM7.html";

}  // namespace telarium
