#include "viewer/page/Normaliser.h"

#include <algorithm>
#include <memory>
#include <utility>

#include "viewer/page/Fonts.h"
#include "viewer/page/Limits.h"
#include "viewer/page/Markup.h"
#include "viewer/page/PageText.h"

namespace kladez::viewer {
using namespace Qt::StringLiterals;

namespace {

// Pixels: a picture of a whole window fits a sheet in portrait.
constexpr double kWidestGuidePicture = 680;

struct OutputDeleter {
  void operator()(GumboOutput* output) const {
    gumbo_destroy_output(&kGumboDefaultOptions, output);
  }
};

const GumboNode* FindElement(const GumboNode& node, GumboTag tag) {
  if (node.type != GUMBO_NODE_ELEMENT) return nullptr;
  const GumboVector& children = node.v.element.children;
  for (unsigned i = 0; i < children.length; ++i) {
    const auto* child = static_cast<const GumboNode*>(children.data[i]);
    if (child->type == GUMBO_NODE_ELEMENT && child->v.element.tag == tag) return child;
  }
  return nullptr;
}

QString TitleOf(const GumboNode& root) {
  const GumboNode* head = FindElement(root, GUMBO_TAG_HEAD);
  const GumboNode* title = head == nullptr ? nullptr : FindElement(*head, GUMBO_TAG_TITLE);
  if (title == nullptr || title->v.element.children.length == 0) return {};
  const auto* text = static_cast<const GumboNode*>(title->v.element.children.data[0]);
  return text->type == GUMBO_NODE_ELEMENT ? QString() : QString::fromUtf8(text->v.text.text);
}

}  // namespace

void Normaliser::ReadChildren(const GumboNode& node, Flow& flow, const Flow::Look& look) {
  const GumboVector& children = node.v.element.children;
  for (unsigned i = 0; i < children.length; ++i)
    ReadNode(*static_cast<const GumboNode*>(children.data[i]), flow, look);
}

void Normaliser::ReadNode(const GumboNode& node, Flow& flow, const Flow::Look& look) {
  if (node.type == GUMBO_NODE_TEXT || node.type == GUMBO_NODE_WHITESPACE ||
      node.type == GUMBO_NODE_CDATA)
    AddText(flow, QString::fromUtf8(node.v.text.text), look);
  else if (node.type == GUMBO_NODE_ELEMENT)
    ReadElement(node, flow, look);
}

void Normaliser::ReadElement(const GumboNode& node, Flow& flow, const Flow::Look& look) {
  switch (node.v.element.tag) {
    case GUMBO_TAG_HEAD:
      break;
    case GUMBO_TAG_BR:
      flow.AddBreak(look);
      break;
    case GUMBO_TAG_IMG:
      ReadPicture(node, flow, look);
      break;
    case GUMBO_TAG_TABLE:
      if (auto table = ReadTable(node, look); !table->rows.empty()) flow.AddTable(std::move(table));
      break;
    case GUMBO_TAG_P:
    case GUMBO_TAG_DIV:
    case GUMBO_TAG_CENTER:
    case GUMBO_TAG_PRE:
    case GUMBO_TAG_H1:
    case GUMBO_TAG_H2:
    case GUMBO_TAG_UL:
    case GUMBO_TAG_LI:
      ReadBlock(node, flow, look);
      break;
    default: {
      Flow::Look inside = look;
      inside.style = StyleInside(Tag(node), look.style);
      ReadChildren(node, flow, inside);
    }
  }
}

void Normaliser::ReadBlock(const GumboNode& node, Flow& flow, const Flow::Look& look) {
  const GumboTag tag = node.v.element.tag;
  Flow::Look inside = look;
  inside.style = StyleInside(Tag(node), look.style);
  inside.align =
      AlignmentOf(Tag(node)).value_or(tag == GUMBO_TAG_CENTER ? Qt::AlignHCenter : look.align);
  inside.preformatted = look.preformatted || tag == GUMBO_TAG_PRE;
  inside.listed = look.listed || tag == GUMBO_TAG_LI;
  const bool has_margin = tag != GUMBO_TAG_DIV && tag != GUMBO_TAG_CENTER && tag != GUMBO_TAG_LI;
  const double margin = has_margin ? inside.style.points * kPixelsPerPoint : 0;
  flow.EndParagraph(margin);
  if (tag == GUMBO_TAG_LI) flow.AddText(u"\u2022 "_s, inside);
  ReadChildren(node, flow, inside);
  flow.EndParagraph(margin);
}

void Normaliser::ReadPicture(const GumboNode& node, Flow& flow, const Flow::Look& look) {
  const QString name = Tag(node).Attribute("src");
  if (name.isEmpty()) return;
  if (!page_.pictures.contains(name)) page_.pictures[name] = load_picture_(name);
  const QSizeF told(Tag(node).Attribute("width").toInt(), Tag(node).Attribute("height").toInt());
  const QSizeF most(limits::kPictureSide, limits::kPictureSide);
  if (!told.isEmpty() && told == told.boundedTo(most)) page_.told_sizes[name] = told;
  if (page_.pictures[name].isNull())
    flow.AddText(u"[нет рисунка: %1]"_s.arg(name), look);
  else
    flow.AddPicture(name, look);
}

// Adds what of the text there is room for.
void Normaliser::AddText(Flow& flow, const QString& text, const Flow::Look& look) {
  qsizetype room = limits::kLetters - letters_;
  if (cell_depth_ > 0) room = std::min(room, limits::kLettersOfCell - letters_of_cell_);
  if (text.size() > room) is_cut_ = true;
  flow.AddText(text.size() > room ? text.first(std::max<qsizetype>(0, room)) : text, look);
  letters_ += text.size();
  letters_of_cell_ += text.size();
}

Page Normaliser::Read(const GumboNode& root, const QString& family) {
  Flow::Look look;
  look.style.family = family;
  Flow flow(page_, false);
  ReadNode(root, flow, look);
  if (is_cut_) {
    flow.EndParagraph(look.style.points * kPixelsPerPoint);
    flow.AddText(QString::fromUtf16(kCutText), look);
  }
  page_.blocks = flow.Take(look);
  return std::move(page_);
}

Page ReadPage(const QString& text, const PictureLoader& load_picture, const Progress& progress,
              PageKind kind) {
  // The parser itself can't be asked how far it is.
  const Progress before_parsing = progress.Piece(0, 0.5);
  const Progress after_parsing = progress.Piece(0.5, 1);
  const bool guide = kind == PageKind::kGuide;
  EscapedPage escaped;
  if (guide) {
    escaped.markup = text.left(limits::kMarkup);
    escaped.is_cut = text.size() > limits::kMarkup;
  } else {
    escaped = EscapePage(text, before_parsing);
  }
  escaped.is_cut = escaped.is_cut || text.size() > limits::kBytes;
  QByteArray markup = std::exchange(escaped.markup, {}).toUtf8();
  GumboOptions options = kGumboDefaultOptions;
  options.max_errors = 0;
  const std::unique_ptr<GumboOutput, OutputDeleter> output(
      gumbo_parse_with_options(&options, markup.constData(), static_cast<size_t>(markup.size())));
  Page page = Normaliser(text, escaped, load_picture, after_parsing)
                  .Read(*output->root, QString::fromUtf16(guide ? kSans : kSerif));
  page.title = TitleOf(*output->root).simplified();
  page.widest_picture = guide ? kWidestGuidePicture : 0;
  MarkPrintParts(page);
  return page;
}

}  // namespace kladez::viewer
