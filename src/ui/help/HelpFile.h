#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quorin {

// The help file "qn.HLP" is plain UTF-8 text (a BOM is allowed), CR LF or LF line ends.
// A line "@topic <context number> <title>" starts a topic; the lines up to the next such line
// are its body. In a body, blank lines separate paragraphs and the lines of one paragraph are
// joined with single spaces; a line starting with "- " starts a bullet item and one starting
// with "## " is a heading of its own. Lines starting with "#" and a blank are comments, and so
// are the lines before the first topic. A header without a decimal number starts no topic:
// its body is skipped.
enum class HelpBlockKind { Paragraph, Bullet, Heading };

struct HelpBlock {
    HelpBlockKind kind = HelpBlockKind::Paragraph;
    std::string text;
    friend bool operator==(const HelpBlock&, const HelpBlock&) = default;
};

struct HelpTopic {
    int context = 0;
    std::string title;
    std::vector<HelpBlock> blocks;
};

std::vector<HelpTopic> ParseHelpFile(std::string_view text);

// The first topic with the context number, or null.
const HelpTopic* FindHelpTopic(const std::vector<HelpTopic>& topics, int context);

// The help file of a program folder: the folder with surrounding blanks removed, then
// "\qn.HLP", or only "qn.HLP" when the folder already ends with "\".
std::string HelpFilePath(std::string_view programFolder);

// What the help viewer shows for a context number: the topic, or a topic that says in full
// sentences that the help file cannot be read or has no such topic.
HelpTopic LoadHelpTopic(const std::string& helpFile, int context);

}  // namespace quorin
