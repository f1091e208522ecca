#include <array>
#include <cstdint>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

// Joins the chapters of the guide with its style sheet, its pictures and a table of contents:
//   help_maker FOLDER OUT_FOLDER CHAPTER...
// CHAPTER is the name of a file of FOLDER without ".html"; the pictures lie in FOLDER/pictures.
// Makes TELARIUM7.mht, a web archive, and TELARIUM7.html, the same page for browsers that take
// none. A picture that is missing, a link to nowhere and an anchor that stands twice are errors.
namespace {

namespace fs = std::filesystem;

constexpr std::string_view title = "Guida di Telarium";
constexpr std::string_view boundary = "----=_Guida_di_Telarium";
constexpr std::string_view picture_mark = "src=\"pictures/";

std::string Read(const fs::path& file) {
  std::ifstream in(file, std::ios::binary);
  if (!in) throw std::runtime_error("cannot read " + file.string());
  return {std::istreambuf_iterator<char>(in), {}};
}

void Write(const fs::path& file, std::string_view text) {
  std::ofstream out(file, std::ios::binary);
  out.write(text.data(), static_cast<std::streamsize>(text.size()));
  if (!out.flush()) throw std::runtime_error("cannot write " + file.string());
}

// In lines of that many characters, ended by CR LF; 0: without a break.
std::string Base64(std::string_view bytes, std::size_t line) {
  constexpr std::string_view digits =
      "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  std::string text;
  for (std::size_t i = 0, written = 0; i < bytes.size(); i += 3) {
    std::uint32_t group = 0;
    for (std::size_t k = 0; k < 3; ++k)
      group = group << 8 | (i + k < bytes.size() ? static_cast<unsigned char>(bytes[i + k]) : 0u);
    for (std::size_t k = 0; k < 4; ++k)
      text += i + k > bytes.size() ? '=' : digits[group >> (18 - 6 * k) & 63];
    written += 4;
    if (line != 0 && written % line == 0) text += "\r\n";
  }
  return text;
}

// Calls `visit` with what stands behind each `mark` up to the closing quote.
template <class Visit>
void ForEachValue(std::string_view page, std::string_view mark, Visit visit) {
  for (std::size_t at = page.find(mark); at != page.npos; at = page.find(mark, at)) {
    at += mark.size();
    visit(page.substr(at, page.find('"', at) - at));
  }
}

void CheckLinks(const std::string& page) {
  std::set<std::string, std::less<>> anchors;
  ForEachValue(page, " id=\"", [&](std::string_view name) {
    if (!anchors.emplace(name).second)
      throw std::runtime_error("anchor stands twice: " + std::string(name));
  });
  ForEachValue(page, "href=\"#", [&](std::string_view name) {
    if (!anchors.contains(name)) throw std::runtime_error("broken link: #" + std::string(name));
  });
}

// Headings of chapters and sections that have an anchor: <h2 id="a">Text</h2>, likewise h3.
std::string TableOfContents(std::string_view chapters) {
  std::string contents = "<nav><h2>Indice</h2><ol>\n";
  bool in_chapter = false, in_sections = false;
  for (std::size_t at = chapters.find("<h"); at != chapters.npos; at = chapters.find("<h", at)) {
    const std::string_view heading = chapters.substr(at, chapters.find('\n', at) - at);
    at += 2;
    const char level = heading[2];
    const std::size_t anchor = heading.find(" id=\"");
    const std::size_t end = heading.find("</h");
    if ((level != '2' && level != '3') || anchor != 3 || end == heading.npos) continue;
    const std::size_t close = heading.find('"', 8);
    if (level == '2' && in_sections) contents += "</ol>";
    if (level == '2' && in_chapter) contents += "</li>\n";
    if (level == '3' && !in_sections) contents += "\n<ol>";
    in_sections = level == '3';
    in_chapter = true;
    contents += "<li><a href=\"#" + std::string(heading.substr(8, close - 8)) + "\">" +
                std::string(heading.substr(close + 2, end - close - 2)) + "</a>";
    if (level == '3') contents += "</li>";
  }
  if (in_sections) contents += "</ol>";
  return contents + "</li>\n</ol></nav>\n";
}

std::string Page(const fs::path& folder, const std::vector<std::string>& names) {
  std::string chapters;
  for (const std::string& name : names)
    chapters += Read(folder / (name + ".html"));
  const std::string page =
      "<!DOCTYPE html>\n<html lang=\"it\">\n<head>\n<meta charset=\"utf-8\">\n<title>" +
      std::string(title) +
      "</title>\n<meta name=\"viewport\" content=\"width=device-width\">\n<style>\n" +
      Read(folder / "guide.css") + "</style>\n</head>\n<body>\n" + TableOfContents(chapters) +
      "<main>\n" + chapters + "</main>\n</body>\n</html>\n";
  CheckLinks(page);
  return page;
}

// The pictures that a page shows, by name.
std::map<std::string, std::string> Pictures(const fs::path& folder, std::string_view page) {
  std::map<std::string, std::string> pictures;
  ForEachValue(page, picture_mark, [&](std::string_view name) {
    pictures[std::string(name)] = Read(folder / "pictures" / name);
  });
  return pictures;
}

// Where the pictures of the page are to be found instead: `place` says so for a name. The size that
// the file tells goes with it, so that nothing moves while the page loads.
template <class Place>
std::string WithPicturesAt(std::string_view page, const std::map<std::string, std::string>& files,
                           Place place) {
  const auto number = [](std::string_view png, std::size_t at) {
    std::uint32_t value = 0;
    for (const char byte : png.substr(at, 4))
      value = value << 8 | static_cast<unsigned char>(byte);
    return std::to_string(value);
  };
  std::string out;
  std::size_t from = 0;
  for (std::size_t at; (at = page.find(picture_mark, from)) != page.npos;) {
    const std::size_t begin = at + picture_mark.size(), end = page.find('"', begin);
    const std::string name(page.substr(begin, end - begin));
    const std::string& png = files.at(name);
    out.append(page, from, at - from);
    out += "src=\"" + place(name) + "\" width=\"" + number(png, 16) + "\" height=\"" +
           number(png, 20) + '"';
    from = end + 1;
  }
  return out.append(page, from, page.npos);
}

// One document of the archive with the lines of its head.
std::string Part(std::string_view head, std::string_view content) {
  constexpr std::size_t line = 76;
  return "--" + std::string(boundary) + "\r\nContent-Transfer-Encoding: base64\r\n" +
         std::string(head) + "\r\n" + Base64(content, line) + "\r\n";
}

std::string Id(const std::string& name) {
  return name + "@telarium.example";
}

// Browsers follow no link within an archive that is a file: they take the file for another
// document, which it may not open. In a frame the guide is a document of its own, whose links they
// follow. On paper a frame would end with the window, so what is printed is the page around it, the
// guide again.
std::string WithFrame(std::string page) {
  constexpr std::string_view body = "<body>\n";
  return page.replace(page.find(body), body.size(),
                      "<body class=\"cover\">\n<iframe src=\"cid:" + Id("guide") + "\" title=\"" +
                          std::string(title) + "\"></iframe>\n");
}

std::string Archive(const std::string& page, const std::map<std::string, std::string>& files) {
  const std::string with_pictures =
      WithPicturesAt(page, files, [](const auto& name) { return "cid:" + Id(name); });
  const std::string html = "Content-Type: text/html; charset=\"utf-8\"\r\n";
  const auto called = [](const std::string& name) { return "Content-ID: <" + Id(name) + ">\r\n"; };
  std::string archive = "From: <Telarium>\r\nSubject: " + std::string(title) +
                        "\r\nMIME-Version: 1.0\r\nContent-Type: multipart/related; "
                        "type=\"text/html\";\r\n boundary=\"" +
                        std::string(boundary) + "\"\r\n\r\n";
  archive += Part(html, WithFrame(with_pictures));
  archive += Part(html + called("guide"), with_pictures);
  for (const auto& [name, png] : files)
    archive += Part("Content-Type: image/png\r\n" + called(name), png);
  return archive + "--" + std::string(boundary) + "--\r\n";
}

std::string Twin(std::string_view page, const std::map<std::string, std::string>& files) {
  return WithPicturesAt(page, files, [&](const auto& name) {
    return "data:image/png;base64," + Base64(files.at(name), 0);
  });
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 4) {
    std::fputs("usage: help_maker FOLDER OUT_FOLDER CHAPTER...\n", stderr);
    return 2;
  }
  const fs::path folder = argv[1], out = argv[2];
  try {
    const std::string page = Page(folder, {argv + 3, argv + argc});
    const auto files = Pictures(folder, page);
    Write(out / "TELARIUM7.mht", Archive(page, files));
    Write(out / "TELARIUM7.html", Twin(page, files));
  } catch (const std::exception& error) {
    std::fprintf(stderr, "help_maker: %s\n", error.what());
    return 1;
  }
  return 0;
}
