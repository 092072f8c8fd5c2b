#pragma once

#include <QByteArray>
#include <QString>

#include <functional>

namespace kiv::test {

/// Samples of signed 16 bits, 16 kHz, mono.
constexpr int bytesPerMs = 32;

/// A sentence in Flite's voice. Empty when there is no Flite.
QByteArray spoken(const QString &sentence);
/// So much silence.
QByteArray silence(int milliseconds);
/// Where in `samples` the voice begins and ends, in milliseconds.
std::pair<int, int> voiceIn(const QByteArray &samples);

/// Hands the samples over as a microphone would, in pieces of 100 ms each when it is over, and lets
/// events be handled meanwhile.
void play(const QByteArray &samples, const std::function<void(const QByteArray &)> &piece);

/// Words of a text without case and punctuation.
QStringList plainWords(const QString &text);
/// How many words have to be put in, taken out or replaced to make `heard` of `said`.
int wordErrors(const QString &said, const QString &heard);

} // namespace kiv::test
