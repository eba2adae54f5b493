#include <app/drawing/OutputFile.h>

#include <algorithm>
#include <cctype>
#include <system_error>

#include <app/text/Errors.h>

namespace velmora::app {
namespace {

namespace fs = std::filesystem;

constexpr const char* accepted = "a file that ends in .png, .svg or .pdf";

PictureFormat formatOf(const std::string& name) {
  const bool isPlain = name.find('\0') == std::string::npos;
  std::string ending = fs::path(name).extension().string();
  for (char& letter : ending) letter = static_cast<char>(std::tolower(static_cast<unsigned char>(letter)));
  if (isPlain && ending == ".png") return PictureFormat::png;
  if (isPlain && ending == ".svg") return PictureFormat::svg;
  if (isPlain && ending == ".pdf") return PictureFormat::pdf;
  throw BadInput("output " + quote(name) + " has no known format; accepted: " + accepted);
}

/// The path with every link and every ".." followed, whether or not there is a file yet.
fs::path resolved(const fs::path& path, const std::string& name) {
  std::error_code error;
  fs::path whole = fs::weakly_canonical(path, error);
  if (error || fs::is_symlink(fs::symlink_status(whole, error)))
    throw BadInput("output " + quote(name) + " leads nowhere; accepted: " + accepted);
  return whole;
}

fs::path below(const std::string& folder, const std::string& name) {
  const fs::path root = resolved(folder, folder), path = resolved(root / name, name);
  if (std::mismatch(root.begin(), root.end(), path.begin(), path.end()).first != root.end())
    throw BadInput("output " + quote(name) +
                   " does not lie below the folder of pictures; accepted: " + "a path from there on");
  return path;
}

/// Writing to a pipe waits until somebody reads it.
void checkIsNoPipe(const fs::path& path, const std::string& name) {
  std::error_code error;
  if (fs::is_fifo(path, error))
    throw BadInput("output " + quote(name) + " is a pipe; accepted: " + accepted +
                   ", or - for standard output");
}

}  // namespace

OutputFile outputFileOf(const DrawingRequest& drawing) {
  if (!drawing.output)
    throw BadInput(std::string("output is missing; accepted: ") + accepted + ", or - for standard output");
  const std::string& name = *drawing.output;
  if (name == "-" && !drawing.folder) return {name, {}, PictureFormat::png};
  const PictureFormat format = formatOf(name);
  const fs::path path = drawing.folder ? below(*drawing.folder, name) : fs::path(name);
  checkIsNoPipe(path, name);
  return {name, path, format};
}

}  // namespace velmora::app
