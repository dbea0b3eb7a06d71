#include "platform/qt/cups_library.h"

#include "platform/qt/shared_library.h"

namespace trameli {

bool CupsLibrary::Load() {
    std::call_once(looked_, [this] {
        SharedLibrary cups("libcups.so.2");
        cups.Find("cupsAddOption", cupsAddOption);
        cups.Find("cupsCancelJob2", cupsCancelJob2);
        cups.Find("cupsCreateJob", cupsCreateJob);
        cups.Find("cupsDoRequest", cupsDoRequest);
        cups.Find("cupsEncryption", cupsEncryption);
        cups.Find("cupsFinishDocument", cupsFinishDocument);
        cups.Find("cupsFreeOptions", cupsFreeOptions);
        cups.Find("cupsGetDefault2", cupsGetDefault2);
        cups.Find("cupsLastError", cupsLastError);
        cups.Find("cupsServer", cupsServer);
        cups.Find("cupsSetPasswordCB2", cupsSetPasswordCB2);
        cups.Find("cupsStartDocument", cupsStartDocument);
        cups.Find("cupsUser", cupsUser);
        cups.Find("cupsWriteRequestData", cupsWriteRequestData);
        cups.Find("httpAssembleURI", httpAssembleURI);
        cups.Find("httpClose", httpClose);
        cups.Find("httpConnect2", httpConnect2);
        cups.Find("httpSetTimeout", httpSetTimeout);
        cups.Find("ippAddString", ippAddString);
        cups.Find("ippAddStrings", ippAddStrings);
        cups.Find("ippDelete", ippDelete);
        cups.Find("ippFindAttribute", ippFindAttribute);
        cups.Find("ippFirstAttribute", ippFirstAttribute);
        cups.Find("ippGetBoolean", ippGetBoolean);
        cups.Find("ippGetCollection", ippGetCollection);
        cups.Find("ippGetCount", ippGetCount);
        cups.Find("ippGetInteger", ippGetInteger);
        cups.Find("ippGetName", ippGetName);
        cups.Find("ippGetResolution", ippGetResolution);
        cups.Find("ippGetString", ippGetString);
        cups.Find("ippGetValueTag", ippGetValueTag);
        cups.Find("ippNewRequest", ippNewRequest);
        cups.Find("ippNextAttribute", ippNextAttribute);
        cups.Find("ippPort", ippPort);
        cups.Find("pwgMediaForPWG", pwgMediaForPWG);
        complete_ = cups.IsComplete();
    });
    return complete_;
}

}  // namespace trameli
