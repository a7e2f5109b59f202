#include "maker/chime.h"

#include <QDataStream>
#include <QSaveFile>
#include <array>
#include <cmath>
#include <numbers>
#include <vector>

#include "platform/error.h"

namespace trimlog {

namespace {

constexpr int samplesPerSecond = 44100;
constexpr double seconds = 1.4;

struct Note {
  double start;      ///< seconds
  double frequency;  ///< Hz
  double loudness;
};
/// G5, C6, E6: the second inversion of C major, which sounds like something finished well.
constexpr std::array notes = {Note{0.00, 783.99, 0.30}, Note{0.14, 1046.50, 0.30}, Note{0.28, 1318.51, 0.34}};

/// The partials of a small metal bar, the higher ones softer and sooner gone.
struct Partial {
  double ratio;
  double loudness;
  double decay;  ///< per second
};
constexpr std::array partials = {Partial{1.0, 1.0, 4.5}, Partial{2.0, 0.22, 7.0}, Partial{3.01, 0.10, 12.0}};

double SoundOf(const Note &note, double time) {
  const double age = time - note.start;
  if (age < 0) return 0;
  const double attack = std::min(age / 0.008, 1.0);
  double sum = 0;
  for (const Partial &partial : partials) {
    sum += partial.loudness * std::exp(-partial.decay * age) *
           std::sin(2 * std::numbers::pi * note.frequency * partial.ratio * age);
  }
  return note.loudness * attack * sum;
}

std::vector<qint16> Samples() {
  const int count = static_cast<int>(samplesPerSecond * seconds);
  std::vector<qint16> samples;
  samples.reserve(count);
  for (int i = 0; i < count; ++i) {
    const double time = static_cast<double>(i) / samplesPerSecond;
    const double fadeOut = std::min((seconds - time) / 0.15, 1.0);
    double value = 0;
    for (const Note &note : notes) value += SoundOf(note, time);
    samples.push_back(static_cast<qint16>(std::lround(std::clamp(value * fadeOut, -1.0, 1.0) * 32000)));
  }
  return samples;
}

}  // namespace

void WriteChime(const QString &path) {
  const std::vector<qint16> samples = Samples();
  const quint32 bytes = static_cast<quint32>(samples.size() * sizeof(qint16));
  QSaveFile file(path);
  if (!file.open(QIODevice::WriteOnly))
    throw Error(error_number::other, path + QStringLiteral(": ") + file.errorString());
  QDataStream stream(&file);
  stream.setByteOrder(QDataStream::LittleEndian);
  stream.writeRawData("RIFF", 4);
  stream << quint32(36 + bytes);
  stream.writeRawData("WAVEfmt ", 8);
  stream << quint32(16) << quint16(1) << quint16(1) << quint32(samplesPerSecond) << quint32(samplesPerSecond * 2)
         << quint16(2) << quint16(16);
  stream.writeRawData("data", 4);
  stream << bytes;
  for (const qint16 sample : samples) stream << sample;
  if (!file.commit()) throw Error(error_number::other, path + QStringLiteral(": ") + file.errorString());
}

}  // namespace trimlog
