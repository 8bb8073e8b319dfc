#include "page/document/PageDocument.h"

#include "page/document/FieldReader.h"
#include "page/document/FieldWriter.h"
#include "page/document/ItemFields.h"
#include "page/document/NumberText.h"
#include "page/model/Canvas.h"
#include "xml/GuardedXml.h"
#include "xml/XmlBytes.h"

#include <QByteArray>
#include <QDomDocument>
#include <QHash>

#include <algorithm>
#include <iterator>
#include <memory>
#include <optional>
#include <vector>

namespace TVR::Page {

namespace {

constexpr const char* documentType = "GraphicWidgetExport";
constexpr const char* pageVersion = "1.2";
/// Ids above this are not taken over: the ones after them could not be counted.
constexpr int highestId = 1'000'000'000;

constexpr XmlLimits pageLimits{.bytes = 256 << 20,
                               .depth = 200,
                               .elements = 500'000,
                               .attributes = 10'000'000,
                               .attributesOfElement = 1000};

template <typename Kind, typename Fields, typename AnyItem>
void describeAs(const Fields& fields, AnyItem& item) {
  using Cast = std::conditional_t<std::is_const_v<AnyItem>, const Kind, Kind>;
  auto& known = static_cast<Cast&>(item);
  describeCommon(fields, known);
  describe(fields, known, static_cast<const Kind*>(nullptr));
}

/// What the document knows of one kind of item.
struct ItemType {
  ItemKind kind;
  const char* name;
  std::unique_ptr<Item> (*make)(int id);
  void (*read)(const FieldReader& fields, Item& item);
  void (*write)(const FieldWriter& fields, const Item& item);
};

template <typename Kind>
constexpr ItemType itemType(const char* name) {
  return {Kind::ownKind, name,
          [](int id) -> std::unique_ptr<Item> { return std::make_unique<Kind>(id); },
          describeAs<Kind, FieldReader, Item>, describeAs<Kind, FieldWriter, const Item>};
}

constexpr ItemType itemTypes[] = {
    itemType<TextItem>("GraphicsTextItem"),       itemType<PlotItem>("GraphicsPlotItem"),
    itemType<LegendItem>("GraphicsLegendItem"),   itemType<PictureItem>("GraphicsPixmapItem"),
    itemType<CurveItem>("GraphicsCurveItem"),     itemType<GridDataItem>("GraphicsGridDataItem"),
    itemType<IsolineItem>("GraphicsIsolineItem"),
};

/// The type that `fits`; null where the document keeps what is not known here.
template <typename Fits>
const ItemType* findType(const Fits& fits) {
  const auto* type = std::find_if(std::begin(itemTypes), std::end(itemTypes), fits);
  return type == std::end(itemTypes) ? nullptr : type;
}

QDomElement firstItem(const QDomElement& list) {
  return list.firstChildElement("Item");
}

int idOf(const QDomElement& element) {
  const int id = element.attribute("id").toInt();
  return id > 0 && id <= highestId ? id : 0;
}

int highestIdBelow(const QDomElement& element) {
  int highest = idOf(element);
  const QDomNodeList items = element.elementsByTagName("Item");
  for (int index = 0; index < items.count(); ++index)
    highest = std::max(highest, idOf(items.at(index).toElement()));
  return highest;
}

/// Whether the items are as many, and as deep inside each other, as a page could have: each of them
/// is written with more elements than it may have been read from.
bool hasPlausibleItems(const QDomElement& root) {
  constexpr int mostItems = 10'000;
  constexpr int deepestItem = 30;
  const QDomNodeList items = root.elementsByTagName("Item");
  bool isPlausible = items.count() <= mostItems;
  for (int index = 0; isPlausible && index < items.count(); ++index) {
    int depth = 0;
    for (QDomNode node = items.at(index); !node.isNull(); node = node.parentNode())
      depth += node.nodeName() == "Item" ? 1 : 0;
    isPlausible = depth <= deepestItem;
  }
  return isPlausible;
}

/// Makes items of elements. An id that is taken already, or can't be used, is replaced by a new
/// one.
class ItemFactory {
public:
  /// Ids of the document are kept if `keepsIds`; `nextId` is the first new one and counts on.
  ItemFactory(bool keepsIds, int& nextId) : keepsIds_(keepsIds), nextId_(nextId) {}

  /// The element goes out of its tree and becomes what the item keeps of its document.
  std::unique_ptr<Item> make(QDomElement element, Item* parent) {
    element.parentNode().removeChild(element);
    const QString name = element.attribute("Type");
    const ItemType* type = findType([&](const ItemType& known) { return name == known.name; });
    const int id = newId(idOf(element));
    std::unique_ptr<Item> item =
        type ? type->make(id) : std::make_unique<Item>(ItemKind::Other, id);
    item->parent = parent;
    const FieldReader fields(element, budget_);
    if (type)
      type->read(fields, *item);
    else
      describeUnknown(fields, *item);
    readOtherProperties(fields.child("Properties"), *item);
    const QDomElement children = element.firstChildElement("Children");
    for (QDomElement child = firstItem(children); !child.isNull(); child = firstItem(children))
      item->children.push_back(make(child, item.get()));
    if (item->kind == ItemKind::GridData)
      joinIsolines(static_cast<GridDataItem&>(*item));
    item->stored = element;
    return item;
  }

private:
  int newId(int stored) {
    const bool isFree = stored > 0 && !newIds_.contains(stored);
    const int id = isFree && keepsIds_ ? stored : nextId_++;
    if (isFree)
      newIds_[stored] = id;
    return id;
  }

  static void readOtherProperties(const FieldReader& fields, Item& item) {
    for (const FieldReader& property : fields.children("Property")) {
      int number = 0;
      QVariant value;
      property.integer("Number", number, 1, highestId);
      property.variant(value);
      if (number > 0 && value.isValid())
        item.otherProperties[number] = value;
    }
  }

  /// Lets the data sets refer to the items that their lines have become.
  void joinIsolines(GridDataItem& grid) const {
    for (size_t number = 0; number < grid.sets.size(); ++number) {
      std::vector<int>& ids = grid.sets[number].isolines;
      std::vector<int> joined;
      for (const int stored : ids) {
        const int id = newIds_.value(stored);
        const bool isLine =
            std::any_of(grid.children.begin(), grid.children.end(), [&](const auto& child) {
              return child->id == id && child->kind == ItemKind::Isoline &&
                     static_cast<const IsolineItem&>(*child).dataSet == static_cast<int>(number);
            });
        if (isLine && std::find(joined.begin(), joined.end(), id) == joined.end())
          joined.push_back(id);
      }
      if (joined.size() != ids.size() || (joined.empty() && !grid.sets[number].levels.isEmpty()))
        grid.sets[number].linesAreStale = true;
      ids = joined;
    }
  }

  const bool keepsIds_;
  int& nextId_;
  ReadBudget budget_;
  QHash<int, int> newIds_;
};

void writeOtherProperties(QDomElement element, const Item& item) {
  QMap<int, QVariant> storable = item.otherProperties;
  for (auto entry = storable.begin(); entry != storable.end();)
    entry = FieldWriter::holds(*entry) ? entry + 1 : storable.erase(entry);
  if (storable.isEmpty() && element.firstChildElement("Properties").isNull())
    return;
  FieldWriter list = FieldWriter(element).child("Properties");
  auto property = storable.begin();
  for (FieldWriter& fields : list.entries("Property", storable)) {
    fields.integer("Number", property.key(), 1, highestId);
    fields.variant(*property++);
  }
}

QDomElement itemElement(QDomDocument& document, const Item& item) {
  QDomElement element = document.importNode(item.stored, true).toElement();
  if (element.isNull())
    element = document.createElement("Item");
  element.setAttribute("id", item.id);
  const FieldWriter fields(element);
  if (const ItemType* type =
          findType([&](const ItemType& known) { return item.kind == known.kind; })) {
    element.setAttribute("Type", type->name);
    type->write(fields, item);
  } else {
    describeUnknown(fields, item);
  }
  writeOtherProperties(element, item);
  QDomElement children = element.firstChildElement("Children");
  for (const std::unique_ptr<Item>& child : item.children)
    children.appendChild(itemElement(document, *child));
  return element;
}

/// The sheet, in [mm]; that of a new page if the document has none that could be shown.
QSizeF paperSize(const QDomElement& element) {
  constexpr double longest = 10'000;
  const QSizeF size(shiftedNumber(element.attribute("Width"), -1, 0),
                    shiftedNumber(element.attribute("Height"), -1, 0));
  const bool fits = size.width() >= 1 && size.height() >= 1 && size.width() <= longest &&
                    size.height() <= longest;
  return fits ? size : PageContents().paperSize;
}

/// Reads the page of a document, taking its items out of it.
PageContents pageOf(const QDomDocument& document) {
  QDomElement root = document.documentElement();
  PageContents page;
  page.stored = document;
  page.paperSize = paperSize(root.firstChildElement("Pagesize"));
  ReadBudget none;
  const FieldReader fields(root, none);
  QColor background;
  fields.colour("bgColor", background);
  if (background.isValid())
    page.background = background;
  int stored = 0;
  fields.integer("NextItemId", stored, 1, highestId);
  page.nextItemId = std::max(stored, highestIdBelow(root) + 1);
  ItemFactory factory(true, page.nextItemId);
  const QDomElement items = root.firstChildElement("Items");
  for (QDomElement element = firstItem(items); !element.isNull(); element = firstItem(items))
    page.items.push_back(factory.make(element, nullptr));
  return page;
}

/// The page around the items.
void writeSheet(QDomElement& root, const PageContents& page) {
  FieldWriter fields(root);
  fields.constant("Version", pageVersion);
  fields.colour("bgColor", page.background);
  FieldWriter sheet = fields.child("Pagesize");
  sheet.string("Width", shiftedText(page.paperSize.width(), -1));
  sheet.string("Height", shiftedText(page.paperSize.height(), -1));
  sheet.constant("Orientation", "1");
  sheet.constant("Format", "0");
  for (const char* tag : {"Margin", "PrintSettings", "DefaultFont", "Items"})
    fields.child(tag);
}

} // namespace

bool readPage(Canvas& canvas, const QByteArray& document) {
  const std::optional<QDomDocument> parsed = parseStrictly(document, pageLimits);
  const QDomElement root = parsed ? parsed->documentElement() : QDomElement();
  const bool isPage = root.tagName() == "CanvasEx" && hasPlausibleItems(root);
  PageContents page;
  page.nextItemId = canvas.contents().nextItemId;
  if (isPage)
    page = pageOf(*parsed);
  canvas.setContents(std::move(page));
  return isPage;
}

QByteArray writePage(const Canvas& canvas) {
  const PageContents& page = canvas.contents();
  QDomDocument document(QDomImplementation().createDocumentType(documentType, {}, {}));
  QDomElement root = document.importNode(page.stored.documentElement(), true).toElement();
  if (root.isNull())
    root = document.createElement("CanvasEx");
  document.appendChild(root);
  root.setAttribute("NextItemId", page.nextItemId);
  writeSheet(root, page);
  QDomElement items = root.firstChildElement("Items");
  for (const std::unique_ptr<Item>& item : page.items)
    items.appendChild(itemElement(document, *item));
  return xmlBytes(document);
}

int importItem(Canvas& canvas, int plot, const QDomElement& element) {
  if (!canvas.item<PlotItem>(plot) || element.tagName() != "Item" ||
      !keepsLimits(element, pageLimits))
    return 0;
  QDomDocument document = canvas.contents().stored;
  const QDomElement copy = document.importNode(element, true).toElement();
  if (!hasPlausibleItems(copy))
    return 0;
  int nextId = canvas.contents().nextItemId;
  std::unique_ptr<Item> item = ItemFactory(false, nextId).make(copy, nullptr);
  if (item->kind == ItemKind::GridData)
    static_cast<GridDataItem&>(*item).isImported = true;
  return canvas.addItem(plot, std::move(item));
}

} // namespace TVR::Page
