// The functions of the print service's library.
#pragma once

#include <cups/cups.h>
#include <cups/pwg.h>

#include <mutex>

namespace trameli {

/// CUPS under its own names. It is not linked but looked up at the first question about printers,
/// which many who play never ask, and a machine without it has no queues. Any thread can use it.
class CupsLibrary {
public:
    /// True if all functions are there, now or from an earlier call.
    bool Load();

    decltype(&::cupsAddOption) cupsAddOption = nullptr;
    decltype(&::cupsCancelJob2) cupsCancelJob2 = nullptr;
    decltype(&::cupsCreateJob) cupsCreateJob = nullptr;
    decltype(&::cupsDoRequest) cupsDoRequest = nullptr;
    decltype(&::cupsEncryption) cupsEncryption = nullptr;
    decltype(&::cupsFinishDocument) cupsFinishDocument = nullptr;
    decltype(&::cupsFreeOptions) cupsFreeOptions = nullptr;
    decltype(&::cupsGetDefault2) cupsGetDefault2 = nullptr;
    decltype(&::cupsLastError) cupsLastError = nullptr;
    decltype(&::cupsServer) cupsServer = nullptr;
    decltype(&::cupsSetPasswordCB2) cupsSetPasswordCB2 = nullptr;
    decltype(&::cupsStartDocument) cupsStartDocument = nullptr;
    decltype(&::cupsUser) cupsUser = nullptr;
    decltype(&::cupsWriteRequestData) cupsWriteRequestData = nullptr;
    decltype(&::httpAssembleURI) httpAssembleURI = nullptr;
    decltype(&::httpClose) httpClose = nullptr;
    decltype(&::httpConnect2) httpConnect2 = nullptr;
    decltype(&::httpSetTimeout) httpSetTimeout = nullptr;
    decltype(&::ippAddString) ippAddString = nullptr;
    decltype(&::ippAddStrings) ippAddStrings = nullptr;
    decltype(&::ippDelete) ippDelete = nullptr;
    decltype(&::ippFindAttribute) ippFindAttribute = nullptr;
    decltype(&::ippFirstAttribute) ippFirstAttribute = nullptr;
    decltype(&::ippGetBoolean) ippGetBoolean = nullptr;
    decltype(&::ippGetCollection) ippGetCollection = nullptr;
    decltype(&::ippGetCount) ippGetCount = nullptr;
    decltype(&::ippGetInteger) ippGetInteger = nullptr;
    decltype(&::ippGetName) ippGetName = nullptr;
    decltype(&::ippGetResolution) ippGetResolution = nullptr;
    decltype(&::ippGetString) ippGetString = nullptr;
    decltype(&::ippGetValueTag) ippGetValueTag = nullptr;
    decltype(&::ippNewRequest) ippNewRequest = nullptr;
    decltype(&::ippNextAttribute) ippNextAttribute = nullptr;
    decltype(&::ippPort) ippPort = nullptr;
    decltype(&::pwgMediaForPWG) pwgMediaForPWG = nullptr;

private:
    std::once_flag looked_;
    bool complete_ = false;
};

}  // namespace trameli
