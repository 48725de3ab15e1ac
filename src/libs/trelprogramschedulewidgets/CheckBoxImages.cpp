#include "CheckBoxImages.h"

namespace trel::mediadispatch {

CheckBoxImagePaths& checkBoxImagePaths()
{
    static CheckBoxImagePaths paths;
    return paths;
}

} // namespace trel::mediadispatch
