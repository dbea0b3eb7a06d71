#include "platform/qt/cups_connection.h"

#include <array>
#include <chrono>

namespace trameli {

namespace {

using Now = std::chrono::steady_clock;

extern "C" {
static const char* NoPassword(const char*, http_t*, const char*, const char*, void*) {
    return nullptr;
}
static int GiveUp(http_t*, void*) {
    return 0;
}
}

}  // namespace

ipp_attribute_t* CupsAnswer::Find(const char* name) const {
    return ipp_ ? cups_.ippFindAttribute(ipp_, name, IPP_TAG_ZERO) : nullptr;
}

int CupsAnswer::Count(const char* name) const {
    ipp_attribute_t* found = Find(name);
    return found ? cups_.ippGetCount(found) : 0;
}

std::string CupsAnswer::Text(const char* name, int index) const {
    ipp_attribute_t* found = Find(name);
    const char* text = found ? cups_.ippGetString(found, index, nullptr) : nullptr;
    return text ? text : "";
}

std::vector<std::string> CupsAnswer::Texts(const char* name) const {
    std::vector<std::string> texts;
    for (int i = 0; i < Count(name); ++i) {
        texts.push_back(Text(name, i));
    }
    return texts;
}

int CupsAnswer::Number(const char* name, int index) const {
    ipp_attribute_t* found = Find(name);
    return found ? cups_.ippGetInteger(found, index) : 0;
}

bool CupsAnswer::Is(const char* name) const {
    ipp_attribute_t* found = Find(name);
    return found && cups_.ippGetBoolean(found, 0);
}

CupsAnswer CupsAnswer::Part(const char* name, int index) const {
    ipp_attribute_t* found = Find(name);
    return {cups_, found ? cups_.ippGetCollection(found, index) : nullptr};
}

CupsConnection::CupsConnection(const CupsLibrary& cups, int seconds) : cups_(cups) {
    constexpr int blocking = 1;
    const auto limit = std::chrono::seconds(seconds);
    // The library would ask on the terminal.
    cups.cupsSetPasswordCB2(NoPassword, nullptr);
    const auto start = Now::now();
    http_ = cups.httpConnect2(cups.cupsServer(), cups.ippPort(), nullptr, AF_UNSPEC,
                              cups.cupsEncryption(), blocking,
                              static_cast<int>(std::chrono::milliseconds(limit).count()), nullptr);
    if (http_) {
        cups.httpSetTimeout(http_, seconds, GiveUp, nullptr);
        state_ = States::Open;
    } else if (Now::now() - start < limit) {
        state_ = States::Nobody;
    }
}

CupsConnection::~CupsConnection() {
    if (http_) {
        cups_.httpClose(http_);
    }
}

CupsConnection::Fetched CupsConnection::Ask(ipp_op_t operation, const std::string& queue,
                                            const std::vector<const char*>& attributes) const {
    ipp_t* request = cups_.ippNewRequest(operation);
    std::array<char, HTTP_MAX_URI> uri{};
    if (!queue.empty()) {
        cups_.httpAssembleURI(HTTP_URI_CODING_ALL, uri.data(), static_cast<int>(uri.size()), "ipp",
                              nullptr, "localhost", 0, ("/printers/" + queue).c_str());
        cups_.ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr,
                           uri.data());
    }
    cups_.ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr,
                       cups_.cupsUser());
    cups_.ippAddStrings(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes",
                        static_cast<int>(attributes.size()), nullptr, attributes.data());
    return {cups_.cupsDoRequest(http_, request, "/"), cups_.ippDelete};
}

}  // namespace trameli
