// Makes the files that the program ships from the facts in data/: tlg.dat, foodexer1.dat and WellDone.wav.
// Usage: make_shipped_files <data directory> <output directory>

#include <QDir>
#include <QFile>
#include <cstdio>

#include "core/data/schema.h"
#include "maker/catalog_data.h"
#include "maker/chime.h"
#include "maker/food_update.h"
#include "maker/sample_data.h"

namespace {

using namespace trimlog;

/// Makes a file under another name and moves it into place when it is whole, so that a broken run leaves no half file.
template <typename Fill>
void MakeFile(const QString &path, Fill fill) {
  const QString unfinished = path + QStringLiteral(".new");
  QFile::remove(unfinished);
  {
    const auto database = Database::Create(unfinished);
    Transaction transaction(*database);
    fill(*database);
    transaction.Commit();
  }
  QFile::remove(path);
  if (!QFile::rename(unfinished, path)) throw Error(error_number::other, path + QStringLiteral(" cannot be written."));
}

void MakeShippedFiles(const QString &facts, const QString &output) {
  const FoodFacts foods(facts);
  MakeFile(output + QStringLiteral("/tlg.dat"), [&](Database &database) {
    CreateSchema(database);
    WriteFoods(database, foods);
    WriteCatalogs(database, facts);
    WriteSamples(database, facts, foods);
  });
  MakeFile(output + QStringLiteral("/foodexer1.dat"),
           [&](Database &database) { WriteFoodUpdate(database, facts, foods); });
  WriteChime(output + QStringLiteral("/WellDone.wav"));
}

}  // namespace

int main(int argc, char *argv[]) {
  if (argc != 3) {
    std::fprintf(stderr, "usage: make_shipped_files <data directory> <output directory>\n");
    return 2;
  }
  try {
    QDir().mkpath(QFile::decodeName(argv[2]));
    MakeShippedFiles(QFile::decodeName(argv[1]), QFile::decodeName(argv[2]));
  } catch (const std::exception &error) {
    std::fprintf(stderr, "make_shipped_files: %s\n", error.what());
    return 1;
  }
  return 0;
}
