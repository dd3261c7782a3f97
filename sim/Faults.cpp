#include "Faults.h"

#include <algorithm>
#include <charconv>
#include <limits>

#include "FaultInjection.h"

namespace {

constexpr std::string_view Operations[] = {
    "registerApp",
    "unregisterApp",
    "getAvailableTests",
    "getController",
    "getControllerStatus",
    "getPorts",
    "getModules",
    "getActiveTests",
    "getActiveClients",
    "setActiveClientReadWrite",
    "isMaximumClientCountOK",
    "getResources",
    "getResourcesStatus",
    "launchTest",
    "terminateTest",
    "getTestStatus",
    "requestResources",
    "getResourceRequestStatus",
    "getTestTcpPort",
    "newDirectory",
    "renameFileDirectory",
    "moveFileDirectory",
    "copyFileDirectory",
    "deleteFileDirectory",
    "getFileSystemItems",
    "openFile",
    "closeFile",
    "pushFileContents",
    "pullFileContents",
};

struct NamedAction
{
    std::string_view name;
    Fault::Action action;
};

constexpr NamedAction Actions[] = {
    {"hang", Fault::Action::Hang},
    {"mute", Fault::Action::Mute},
    {"close", Fault::Action::Close},
    {"close-after", Fault::Action::CloseAfter},
    {"reset", Fault::Action::Reset},
    {"reset-after", Fault::Action::ResetAfter},
    {"error:result", Fault::Action::Fail},
    {"garbage", Fault::Action::Garbage},
    {"garbage:length", Fault::Action::HugeLength},
    {"garbage:cut", Fault::Action::Truncated},
};

constexpr unsigned Always = std::numeric_limits<unsigned>::max();

bool isOperation(std::string_view name)
{
    return std::find(std::begin(Operations), std::end(Operations), name) != std::end(Operations);
}

bool readNumber(std::string_view text, unsigned &number)
{
    const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
    return result.ec == std::errc() && result.ptr == text.data() + text.size();
}

std::string quoted(std::string_view text)
{
    return '"' + std::string(text) + '"';
}

std::string readCalls(std::string_view text, unsigned &first, unsigned &last)
{
    first = 1;
    last = Always;
    if (text == "*") {
        return {};
    }
    const bool isOpen = text.ends_with('+');
    if (!readNumber(text.substr(0, text.size() - (isOpen ? 1 : 0)), first) || first == 0) {
        return "expected a call (3, 3+ or *), found " + quoted(text);
    }
    last = isOpen ? Always : first;
    return {};
}

std::string readAction(std::string_view text, Fault &fault)
{
    const auto named = std::find_if(std::begin(Actions), std::end(Actions),
                                    [&](const NamedAction &action) { return action.name == text; });
    if (named != std::end(Actions)) {
        fault.action = named->action;
        return {};
    }
    const size_t colon = std::min(text.find(':'), text.size());
    const std::string_view name = text.substr(0, colon);
    const std::string_view argument = text.substr(std::min(colon + 1, text.size()));
    if (name == "delay") {
        unsigned milliseconds = 0;
        fault.action = Fault::Action::Delay;
        if (!readNumber(argument, milliseconds) || milliseconds > 86400000) {
            return "expected delay:MILLISECONDS, found " + quoted(text);
        }
        fault.delay = std::chrono::milliseconds(milliseconds);
        return {};
    }
    if (name == "error") {
        fault.action = Fault::Action::Exception;
        fault.exception = argument.empty() ? "UNKNOWN" : argument;
        return isSystemException(fault.exception)
            ? std::string()
            : "no system exception is called " + quoted(argument);
    }
    return "expected an action (delay:MS, hang, mute, close, close-after, reset, reset-after, "
           "error, garbage), found "
        + quoted(text);
}

} // namespace

std::string Faults::parse(const std::string &text, Rule &rule)
{
    const size_t first = text.find(':');
    const size_t second = first == text.npos ? first : text.find(':', first + 1);
    if (second == text.npos) {
        return "expected OPERATION:CALL:ACTION";
    }
    rule.text = text;
    rule.operation = text.substr(0, first);
    if (rule.operation == "*") {
        rule.operation.clear();
    } else if (!isOperation(rule.operation)) {
        return "no operation is called " + quoted(rule.operation);
    }
    std::string error = readCalls(std::string_view(text).substr(first + 1, second - first - 1),
                                  rule.first, rule.last);
    if (error.empty()) {
        error = readAction(std::string_view(text).substr(second + 1), rule.fault);
    }
    return error;
}

std::string Faults::add(const std::string &text)
{
    Rule rule;
    const std::string error = parse(text, rule);
    if (!error.empty()) {
        return "fault " + quoted(text) + ": " + error;
    }
    const std::lock_guard lock(m_mutex);
    m_rules.push_back(std::move(rule));
    m_any = true;
    return {};
}

void Faults::clear()
{
    const std::lock_guard lock(m_mutex);
    m_rules.clear();
    m_any = false;
}

std::vector<std::string> Faults::rules() const
{
    const std::lock_guard lock(m_mutex);
    std::vector<std::string> texts;
    for (const Rule &rule : m_rules) {
        texts.push_back(rule.text);
    }
    return texts;
}

std::optional<Fault> Faults::next(std::string_view operation)
{
    if (!m_any || !isOperation(operation)) {
        return std::nullopt;
    }
    const std::lock_guard lock(m_mutex);
    const Fault *fault = nullptr;
    for (Rule &rule : m_rules) {
        if (rule.operation.empty() || rule.operation == operation) {
            ++rule.calls;
            if (!fault && rule.calls >= rule.first && rule.calls <= rule.last) {
                fault = &rule.fault;
            }
        }
    }
    return fault ? std::optional<Fault>(*fault) : std::nullopt;
}

const char *Faults::help()
{
    return R"(A rule is written OPERATION:CALL:ACTION, for instance pushFileContents:3:close
  OPERATION  an operation of the controller, or * for all
  CALL       3: the third call only, 3+: the third and all after it, *: every one;
             a rule counts the calls of its operation, by all clients, since it was set
  ACTION     delay:MS     carried out; the answer comes MS milliseconds later
             hang         not carried out, never answered; the connection stays
             mute         carried out, never answered; the connection stays
             close        not carried out; the connection is closed
             close-after  carried out; the connection is closed instead of answering
             reset        like close, by a TCP reset
             reset-after  like close-after, by a TCP reset
             error[:NAME] not carried out; a CORBA system exception (default UNKNOWN)
             error:result not carried out; the operation's own failure (FS_ERROR, an error
                          code, false, an empty text), where it has one
             garbage      carried out; answered by bytes that are no message
             garbage:length  carried out; answered by a header that announces 2 GiB
             garbage:cut  carried out; the answer ends in its middle, then the connection
Of several rules that match, the one given first counts.
)";
}
