#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

// Joins the chapters of the guide with its style sheet, its pictures and a table of contents:
//   help_maker FOLDER OUT_FOLDER CHAPTER...
// CHAPTER is the name of a file of FOLDER without ".html"; the pictures lie in FOLDER/pictures.
// Makes TELARIUM7.mht, a web archive, and TELARIUM7.html, the same page for browsers that take
// none. What would be missing or lead nowhere in them is an error, and so is a tag that is written
// otherwise than the routines here read it.
namespace {

namespace fs = std::filesystem;

constexpr std::string_view title = "Guida di Telarium";
constexpr std::string_view boundary = "----=_Guida_di_Telarium";
constexpr std::string_view picture_folder = "pictures/";
constexpr std::string_view picture_mark = "src=\"pictures/";

[[noreturn]] void Refuse(const std::string& why) {
  throw std::runtime_error(why);
}

std::string Read(const fs::path& file) {
  std::ifstream in(file, std::ios::binary);
  if (!in) Refuse("cannot read " + file.string());
  return {std::istreambuf_iterator<char>(in), {}};
}

void Write(const fs::path& file, std::string_view text) {
  std::ofstream out(file, std::ios::binary);
  out.write(text.data(), static_cast<std::streamsize>(text.size()));
  if (!out.flush()) Refuse("cannot write " + file.string());
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

// --- What the chapters say, checked ---

struct Attribute {
  std::string name, value;
};

// The attributes of all tags, which have the shape <tag name="value" name>.
std::vector<Attribute> Attributes(const std::string& chapters) {
  static const std::regex tag(R"re(</?[a-z][a-z0-9]*((?:\s+[a-z-]+(?:="[^"<>]*")?)*)>)re");
  static const std::regex attribute(R"re(([a-z-]+)(?:="([^"]*)")?)re");
  std::vector<Attribute> attributes;
  for (std::size_t at = chapters.find('<'); at != chapters.npos; at = chapters.find('<', at + 1)) {
    const std::string text = chapters.substr(at, chapters.find('>', at) - at + 1);
    std::smatch parts;
    if (!std::regex_match(text, parts, tag))
      Refuse("tag of another shape than <tag name=\"value\">: " + text);
    const std::string inner = parts[1];
    for (std::sregex_iterator i(inner.begin(), inner.end(), attribute), end; i != end; ++i)
      attributes.push_back({(*i)[1], (*i)[2]});
  }
  return attributes;
}

bool LeadsOutside(const std::string& link) {
  return link.starts_with("https://") || link.starts_with("http://") || link.starts_with("mailto:");
}

// The file names of the pictures that the attributes show. Anchors stand once, links lead to one of
// them or out into the web, and nothing but a picture is taken from a file.
std::set<std::string> CheckedPictures(const std::vector<Attribute>& attributes) {
  std::set<std::string> anchors, pictures;
  for (const auto& [name, value] : attributes)
    if (name == "id" && !anchors.insert(value).second) Refuse("anchor stands twice: " + value);
  for (const auto& [name, value] : attributes) {
    if (name == "href" && !LeadsOutside(value)) {
      if (!value.starts_with('#')) Refuse("link to a file, which the guide has not: " + value);
      if (!anchors.contains(value.substr(1))) Refuse("broken link: " + value);
    }
    if (name == "src") {
      if (!value.starts_with(picture_folder)) Refuse("no picture of the guide's folder: " + value);
      pictures.insert(value.substr(picture_folder.size()));
    }
  }
  return pictures;
}

struct Heading {
  char level;  // 2: of a chapter, 3: of a section
  std::string anchor, text;
};

// All headings but that of the guide itself.
std::vector<Heading> Headings(const std::string& chapters) {
  static const std::regex opening("<h[1-6]");
  static const std::regex heading(R"re(<h([23]) id="([^"]+)">(.+)</h\1>)re");
  std::vector<Heading> headings;
  std::istringstream lines(chapters);
  for (std::string line; std::getline(lines, line);) {
    const auto count = std::distance(std::sregex_iterator(line.begin(), line.end(), opening), {});
    if (count == 0 || line.starts_with("<h1>")) continue;
    std::smatch parts;
    if (count > 1 || !std::regex_match(line, parts, heading))
      Refuse("heading of another shape than <h2 id=\"anchor\">Text</h2> or h3 on one line: " +
             line);
    headings.push_back({*parts[1].first, parts[2], parts[3]});
    if (headings.front().level != '2') Refuse("section before the first chapter: " + line);
  }
  return headings;
}

std::string Entry(const Heading& heading) {
  return "<li><a href=\"#" + heading.anchor + "\">" + heading.text + "</a>";
}

// A list of the chapters, with a list of its sections in each that has some.
std::string TableOfContents(const std::vector<Heading>& headings) {
  std::string contents = "<nav><h2>Indice</h2><ol>\n";
  for (auto chapter = headings.begin(); chapter != headings.end();) {
    const auto first = chapter + 1;
    const auto next =
        std::find_if(first, headings.end(), [](const Heading& h) { return h.level == '2'; });
    contents += Entry(*chapter);
    if (first != next) contents += "\n<ol>";
    for (auto section = first; section != next; ++section)
      contents += Entry(*section) + "</li>";
    if (first != next) contents += "</ol>";
    contents += "</li>\n";
    chapter = next;
  }
  return contents + "</ol></nav>\n";
}

std::string Chapters(const fs::path& folder, const std::vector<std::string>& names) {
  std::string chapters;
  for (const std::string& name : names)
    chapters += Read(folder / (name + ".html"));
  return chapters;
}

std::string Page(const fs::path& folder, const std::string& chapters) {
  return "<!DOCTYPE html>\n<html lang=\"it\">\n<head>\n<meta charset=\"utf-8\">\n<title>" +
         std::string(title) +
         "</title>\n<meta name=\"viewport\" content=\"width=device-width\">\n<style>\n" +
         Read(folder / "guide.css") + "</style>\n</head>\n<body>\n" +
         TableOfContents(Headings(chapters)) + "<main>\n" + chapters +
         "</main>\n</body>\n</html>\n";
}

// --- The pictures ---

std::string ReadPicture(const fs::path& file) {
  constexpr std::string_view signature = "\x89PNG\r\n\x1A\n";
  constexpr std::size_t size_end = 24;  // where the width and the height have been told
  std::string png = Read(file);
  if (!png.starts_with(signature) || png.size() < size_end) Refuse("no PNG: " + file.string());
  return png;
}

// The contents of the pictures by name: these must be all that lie in the folder.
std::map<std::string, std::string> Pictures(const fs::path& folder,
                                            const std::set<std::string>& names) {
  std::map<std::string, std::string> pictures;
  for (const std::string& name : names)
    pictures[name] = ReadPicture(folder / name);
  for (const auto& entry : fs::directory_iterator(folder))
    if (!names.contains(entry.path().filename().string()))
      Refuse("picture that no chapter shows: " + entry.path().string());
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
    const std::string chapters = Chapters(folder, {argv + 3, argv + argc});
    const std::string page = Page(folder, chapters);
    const auto files = Pictures(folder / picture_folder, CheckedPictures(Attributes(chapters)));
    Write(out / "TELARIUM7.mht", Archive(page, files));
    Write(out / "TELARIUM7.html", Twin(page, files));
  } catch (const std::exception& error) {
    std::fprintf(stderr, "help_maker: %s\n", error.what());
    return 1;
  }
  return 0;
}
