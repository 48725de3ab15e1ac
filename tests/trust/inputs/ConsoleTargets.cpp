#include "BundleTarget.h"
#include "DraftTarget.h"
#include "FuzzTarget.h"
#include "LanguageTargets.h"
#include "StoreTarget.h"
#include "TextTargets.h"

namespace trust {

const std::vector<FuzzTarget>& targets()
{
    static const std::vector<FuzzTarget> all = {
        {"json", tryJson},
        {"rules", tryRules},
        {"address", tryAddress},
        {"arguments", tryArguments},
        {"moment", tryMoment},
        {"terminal", tryTerminal},
        {"language", tryLanguage},
        {"translation", tryTranslation},
        {"store", tryStore, mutateStore},
        {"draft", tryDraft, mutateDraft},
        {"bundle", tryBundle, mutateBundle},
    };
    return all;
}

} // namespace trust
