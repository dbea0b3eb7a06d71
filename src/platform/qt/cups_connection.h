// Talking to the print service.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/qt/cups_library.h"

namespace trameli {

/// What the print service answered, or a part of it.
class CupsAnswer {
public:
    CupsAnswer(const CupsLibrary& cups, ipp_t* attributes) : cups_(cups), ipp_(attributes) {}

    /// Null if there is no such attribute, or it has no value.
    ipp_attribute_t* Find(const char* name) const;
    /// How many values an attribute has.
    int Count(const char* name) const;
    // Empty, 0 or false if it is not there.
    std::string Text(const char* name, int index = 0) const;
    std::vector<std::string> Texts(const char* name) const;
    int Number(const char* name, int index = 0) const;
    bool Is(const char* name) const;
    CupsAnswer Part(const char* name, int index = 0) const;

    ipp_t* Native() const { return ipp_; }

private:
    const CupsLibrary& cups_;
    ipp_t* ipp_;
};

/// A connection for one thread. It asks nobody for a password.
class CupsConnection {
public:
    /// Tries to connect; nothing takes longer than `seconds` without a sign of the service.
    CupsConnection(const CupsLibrary& cups, int seconds);
    ~CupsConnection();
    CupsConnection(const CupsConnection&) = delete;
    CupsConnection& operator=(const CupsConnection&) = delete;

    enum class States {
        Open,
        Nobody,  ///< no print service is running
        Silent,  ///< it does not answer
    };
    States State() const { return state_; }
    http_t* Native() const { return http_; }

    using Fetched = std::unique_ptr<ipp_t, void (*)(ipp_t*)>;
    /// Asks for attributes, of a queue if it has a name. Null if there was no answer at all;
    /// cupsLastError tells more.
    Fetched Ask(ipp_op_t operation, const std::string& queue,
                const std::vector<const char*>& attributes) const;

private:
    const CupsLibrary& cups_;
    http_t* http_ = nullptr;
    States state_ = States::Silent;
};

}  // namespace trameli
