#pragma once

#include <QDate>

#include <string>

namespace trel::mediadispatch {

/// The date that a text in kDateFormat names; an invalid date when it names none.
QDate dateFromText(const std::string& text);

/// A date in kDateFormat; empty for an invalid date.
std::string dateToText(const QDate& date);

} // namespace trel::mediadispatch
