#pragma once

// Like the code of a host: includes only the public header of Plix.
#include <plix/Plix.h>

// All exports, in the order of the export table.
#define PLIX_FOR_EACH_EXPORT(apply)                                                                \
    apply(Plix_CreateController) apply(Plix_CreateQGraphicsItem) apply(Plix_Free)                  \
        apply(Plix_HasAction) apply(Plix_InitData) apply(Plix_InitSetFrom)                         \
            apply(Plix_ModifyHeight) apply(Plix_RefreshLayout) apply(Plix_ResumeBubbleBkColor)     \
                apply(Plix_SetBotMentionHandleCallback) apply(Plix_SetBubbleBkColor)               \
                    apply(Plix_SetClickCallBack) apply(Plix_SetCurrentLanguage)                    \
                        apply(Plix_SetDisplayParam) apply(Plix_SetDownloadCallBack)                \
                            apply(Plix_SetDpi) apply(Plix_SetHighLightText)                        \
                                apply(Plix_SetMentionHandleCallback)                               \
                                    apply(Plix_SetMultiLangGetCallback)                            \
                                        apply(Plix_SetKestroControlSupport)                        \
                                            apply(Plix_SetWiteLogCallback)

// The exports as a host gets them: linked, or looked up by name.
struct HostExports {
#define PLIX_MEMBER(name) decltype(&::name) name;
    PLIX_FOR_EACH_EXPORT(PLIX_MEMBER)
#undef PLIX_MEMBER
};
