#pragma once

#include <QFont>
#include <QString>

namespace trel::desktop {

/// The font with the families that suit a language in front; size and weight stay as they are.
///
/// Han letters have other shapes in Japan, Korea and Taiwan than on the mainland, and the faces of
/// Chinese give quotation marks and apostrophes the width of a Han letter, which tears the words of
/// alphabetic languages apart. A face that the system lacks is passed over.
QFont languageFont(QFont font, const QString& language);

} // namespace trel::desktop
