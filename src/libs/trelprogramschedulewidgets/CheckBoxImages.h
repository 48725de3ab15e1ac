#pragma once

#include <QString>

namespace trel::mediadispatch {

/// Where the images of a check mark lie. Both are empty until the host gives them.
struct CheckBoxImagePaths
{
    QString checked;
    QString unchecked;
};

/// The paths of this process. Readers take the images when they are built and never again, so they
/// are written before the first reader exists. GUI thread only.
CheckBoxImagePaths& checkBoxImagePaths();

} // namespace trel::mediadispatch
