#include "ui/help/HelpFile.h"

#include <charconv>

#include "platform/Errors.h"
#include "platform/Path.h"
#include "platform/Text.h"
#include "platform/TextFile.h"

namespace quorin {

namespace {

constexpr std::string_view kHelpFileName = "qn.HLP";
constexpr std::string_view kTopicHeader = "@topic";
constexpr std::string_view kBulletMark = "- ";
constexpr std::string_view kHeadingMark = "## ";
constexpr std::string_view kUtf8Bom = "\xEF\xBB\xBF";

constexpr std::string_view kLineBlanks = " \t\r";

// Reads "<number> <title>" after the header word; false when there is no number.
bool ParseHeader(std::string_view rest, HelpTopic& topic) {
    rest = TrimBlanks(rest, kLineBlanks);
    const auto [end, error] =
        std::from_chars(rest.data(), rest.data() + rest.size(), topic.context);
    if (error != std::errc() || end == rest.data()) {
        return false;
    }
    const std::string_view title = rest.substr(static_cast<size_t>(end - rest.data()));
    if (!title.empty() && title.front() != ' ' && title.front() != '\t') {
        return false;  // "10abc" is not a number
    }
    topic.title = TrimBlanks(title, kLineBlanks);
    return true;
}

class TopicBuilder {
  public:
    explicit TopicBuilder(std::vector<HelpTopic>& topics) : topics_(topics) {}

    void Line(std::string_view line) {
        if (line.starts_with(kTopicHeader) &&
            (line.size() == kTopicHeader.size() || line[kTopicHeader.size()] == ' ')) {
            Header(line.substr(kTopicHeader.size()));
        } else if (current_ != nullptr && !line.starts_with("# ") && line != "#") {
            BodyLine(TrimBlanks(line, kLineBlanks));
        }
    }

  private:
    void Header(std::string_view rest) {
        HelpTopic topic;
        current_ = nullptr;
        if (ParseHeader(rest, topic)) {
            topics_.push_back(std::move(topic));
            current_ = &topics_.back();
        }
        open_ = false;
    }

    void BodyLine(std::string_view line) {
        if (line.empty()) {
            open_ = false;
        } else if (line.starts_with(kHeadingMark)) {
            Start(HelpBlockKind::Heading, line.substr(kHeadingMark.size()));
            open_ = false;  // a heading is always one line
        } else if (line.starts_with(kBulletMark)) {
            Start(HelpBlockKind::Bullet, line.substr(kBulletMark.size()));
        } else if (open_) {
            current_->blocks.back().text.append(" ").append(line);
        } else {
            Start(HelpBlockKind::Paragraph, line);
        }
    }

    void Start(HelpBlockKind kind, std::string_view text) {
        current_->blocks.push_back({kind, std::string(TrimBlanks(text, kLineBlanks))});
        open_ = true;
    }

    std::vector<HelpTopic>& topics_;
    HelpTopic* current_ = nullptr;
    bool open_ = false;  // whether the next text line continues the last block
};

HelpTopic MessageTopic(int context, std::string title, std::string text) {
    return {context, std::move(title), {{HelpBlockKind::Paragraph, std::move(text)}}};
}

}  // namespace

std::vector<HelpTopic> ParseHelpFile(std::string_view text) {
    if (text.starts_with(kUtf8Bom)) {
        text.remove_prefix(kUtf8Bom.size());
    }
    std::vector<HelpTopic> topics;
    TopicBuilder builder(topics);
    while (!text.empty()) {
        const size_t end = text.find('\n');
        std::string_view line = text.substr(0, end);
        if (line.ends_with('\r')) {
            line.remove_suffix(1);
        }
        builder.Line(line);
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    }
    return topics;
}

const HelpTopic* FindHelpTopic(const std::vector<HelpTopic>& topics, int context) {
    for (const HelpTopic& topic : topics) {
        if (topic.context == context) {
            return &topic;
        }
    }
    return nullptr;
}

std::string HelpFilePath(std::string_view programFolder) {
    const std::string_view folder = TrimBlanks(programFolder, " ");
    if (folder.ends_with(kPathSeparator)) {
        return std::string(folder).append(kHelpFileName);
    }
    return JoinPath(folder, kHelpFileName);
}

HelpTopic LoadHelpTopic(const std::string& helpFile, int context) {
    std::string text;
    try {
        text = ReadWholeFile(helpFile);
    } catch (const FileError&) {
        return MessageTopic(context, "Help is not available",
                            "The help file \"" + helpFile +
                                "\" could not be read. It belongs in the folder that holds "
                                "Quorin; copy it there again to see the help.");
    }
    const std::vector<HelpTopic> topics = ParseHelpFile(text);
    if (const HelpTopic* topic = FindHelpTopic(topics, context)) {
        return *topic;
    }
    return MessageTopic(
        context, "Help topic not found",
        "The help file \"" + helpFile + "\" has no topic number " + std::to_string(context) + ".");
}

}  // namespace quorin
