#include "platform/qt/cups_queues.h"

#include <algorithm>
#include <string_view>

#include "platform/qt/convert.h"
#include "platform/qt/cups_connection.h"
#include "platform/qt/cups_facts.h"
#include "platform/qt/cups_library.h"

namespace trameli {

namespace {

/// How long an answer may take. Nobody waits so long for it, but what is learnt then counts later.
constexpr int SecondsForQuestions = 4;
/// Less than a job may stand still, so that its end is known before it is given up.
constexpr int SecondsForJobs = 20;

/// In bytes; the print service refuses jobs with longer names.
constexpr qsizetype LongestName = 255;

constexpr std::size_t Chunk = 65536;

constexpr const char* Pdf = "application/pdf";

/// The name of a job as the print service takes it.
std::string JobName(const std::string& name) {
    QString fit = ToQt(name);
    while (fit.toUtf8().size() > LongestName) {
        fit.chop(fit.back().isLowSurrogate() ? 2 : 1);
    }
    return FromQt(fit);
}

/// The options of a job.
class Options {
public:
    explicit Options(const CupsLibrary& cups) : cups_(cups) {}
    ~Options() { cups_.cupsFreeOptions(count_, options_); }
    Options(const Options&) = delete;
    Options& operator=(const Options&) = delete;

    void Add(const char* name, const std::string& value) {
        count_ = cups_.cupsAddOption(name, value.c_str(), count_, &options_);
    }
    int Count() const { return count_; }
    cups_option_t* All() const { return options_; }

private:
    const CupsLibrary& cups_;
    int count_ = 0;
    cups_option_t* options_ = nullptr;
};

void AddOptions(const QueueJob& job, Options& options) {
    options.Add("media", job.Paper);
    if (!job.ColourWord.empty()) {
        options.Add("print-color-mode", job.ColourWord);
    }
    // The page is just as it goes onto the paper. These keep the queue's own defaults from
    // multiplying, turning or shrinking it.
    options.Add("copies", std::to_string(job.Copies));
    options.Add("orientation-requested", std::to_string(IPP_ORIENT_PORTRAIT));
    options.Add("print-scaling", "none");
    options.Add("number-up", "1");
}

bool SendDocument(const CupsLibrary& cups, http_t* http, int id, const QueueJob& job,
                  const std::function<bool()>& progress) {
    constexpr int last = 1;
    const char* queue = job.Queue.c_str();
    http_status_t status =
        cups.cupsStartDocument(http, queue, id, JobName(job.Name).c_str(), Pdf, last);
    std::string_view rest = job.Pdf;
    bool wanted = progress();
    while (status == HTTP_STATUS_CONTINUE && wanted && !rest.empty()) {
        const std::size_t length = std::min(rest.size(), Chunk);
        status = cups.cupsWriteRequestData(http, rest.data(), length);
        rest.remove_prefix(length);
        wanted = progress();
    }
    return status == HTTP_STATUS_CONTINUE && wanted &&
           cups.cupsFinishDocument(http, queue) <= IPP_STATUS_OK_CONFLICTING && progress();
}

}  // namespace

std::optional<QueueList> ListQueues(CupsLibrary& cups) {
    if (!cups.Load()) {
        return QueueList();
    }
    const CupsConnection connection(cups, SecondsForQuestions);
    if (connection.State() != CupsConnection::States::Open) {
        return connection.State() == CupsConnection::States::Nobody ? std::optional(QueueList())
                                                                    : std::nullopt;
    }
    const auto answer = connection.Ask(IPP_OP_CUPS_GET_PRINTERS, {}, {"printer-name"});
    if (!answer) {
        return std::nullopt;
    }
    QueueList list;
    for (ipp_attribute_t* one = cups.ippFirstAttribute(answer.get()); one;
         one = cups.ippNextAttribute(answer.get())) {
        const char* attribute = cups.ippGetName(one);
        const char* name = cups.ippGetString(one, 0, nullptr);
        if (attribute && name && std::string_view(attribute) == "printer-name") {
            list.Names.emplace_back(name);
        }
    }
    const char* users = cups.cupsGetDefault2(connection.Native());
    const auto systems = connection.Ask(IPP_OP_CUPS_GET_DEFAULT, {}, {"printer-name"});
    if (!systems) {
        return std::nullopt;
    }
    for (const std::string& own :
         {std::string(users ? users : ""), CupsAnswer(cups, systems.get()).Text("printer-name")}) {
        // A user can choose a queue with a set of options, "queue/set".
        const std::string queue = own.substr(0, own.find('/'));
        if (std::find(list.Names.begin(), list.Names.end(), queue) != list.Names.end()) {
            list.Default = queue;
            break;
        }
    }
    return list;
}

QueueAnswer AskQueue(CupsLibrary& cups, const std::string& name) {
    if (!cups.Load()) {
        return {.Answered = true, .Facts = {}};
    }
    const CupsConnection connection(cups, SecondsForQuestions);
    if (connection.State() != CupsConnection::States::Open) {
        return {.Answered = connection.State() == CupsConnection::States::Nobody, .Facts = {}};
    }
    const auto answer = connection.Ask(IPP_OP_GET_PRINTER_ATTRIBUTES, name, AttributesOfFacts());
    if (!answer) {
        return {};
    }
    if (cups.cupsLastError() > IPP_STATUS_OK_CONFLICTING) {
        return {.Answered = true, .Facts = {}};
    }
    return {.Answered = true, .Facts = FactsFrom(cups, CupsAnswer(cups, answer.get()), name)};
}

bool SubmitJob(CupsLibrary& cups, const QueueJob& job, const std::function<bool()>& progress) {
    if (!cups.Load()) {
        return false;
    }
    const CupsConnection connection(cups, SecondsForJobs);
    if (connection.State() != CupsConnection::States::Open) {
        return false;
    }
    Options options(cups);
    AddOptions(job, options);
    const int id = cups.cupsCreateJob(connection.Native(), job.Queue.c_str(),
                                      JobName(job.Name).c_str(), options.Count(), options.All());
    if (id == 0) {
        return false;
    }
    if (!SendDocument(cups, connection.Native(), id, job, progress)) {
        constexpr int purge = 1;
        cups.cupsCancelJob2(connection.Native(), job.Queue.c_str(), id, purge);
        return false;
    }
    return true;
}

}  // namespace trameli
