// make_pixels PICTURE SOURCE: writes the pixels of a picture as C++, for qt_logo.h. Part of the
// build, not of the program.
#include <cstdio>

#include <QFile>
#include <QImage>
#include <QTextStream>

int main(int count, char** arguments) {
  if (count != 3) return 2;
  QImage picture(QFile::decodeName(arguments[1]));
  picture.convertTo(QImage::Format_ARGB32_Premultiplied);
  QFile file(QFile::decodeName(arguments[2]));
  if (picture.isNull() || !file.open(QIODevice::WriteOnly)) {
    std::fprintf(stderr, "make_pixels: cannot turn %s into %s\n", arguments[1], arguments[2]);
    return 1;
  }
  QTextStream out(&file);
  out << "#include \"toolkit/qt/qt_logo.h\"\n\n"
      << "const QSize termvik::kLogoPixels{" << picture.width() << ", " << picture.height()
      << "};\n"
      << "const QRgb termvik::kLogoPixel[] = {\n";
  for (int y = 0; y < picture.height(); ++y) {
    const auto* line = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
    for (int x = 0; x < picture.width(); ++x) out << line[x] << "U,";
    out << '\n';
  }
  out << "};\n";
  out.flush();
  return file.flush() ? 0 : 1;
}
