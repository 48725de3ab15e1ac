#pragma once

class QByteArray;

namespace trust {

/// A compiled language file is refused, or every text in it can be looked up.
void tryLanguage(const QByteArray& input);

/// The source file of a translator is refused with a reason, or looked through.
void tryTranslation(const QByteArray& input);

} // namespace trust
