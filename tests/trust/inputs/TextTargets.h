#pragma once

class QByteArray;

namespace trust {

/// A schedule in JSON is read whole or refused with a sentence, and what was read is written in a
/// form that reads the same.
void tryJson(const QByteArray& input);

/// The rules and the dispatch answer whatever texts the fields of a schedule hold.
void tryRules(const QByteArray& input);

/// The address of a live source is shown without what stands in the place of a secret.
void tryAddress(const QByteArray& input);

/// A command line, its arguments separated by zeros, is understood or refused with a sentence.
void tryArguments(const QByteArray& input);

/// Moments, dates, times of day and days of the week.
void tryMoment(const QByteArray& input);

/// What goes to a terminal holds nothing that it obeys.
void tryTerminal(const QByteArray& input);

} // namespace trust
