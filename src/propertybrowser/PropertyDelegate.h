#pragma once

#include <QPersistentModelIndex>
#include <QPointer>
#include <QStyledItemDelegate>
#include <QVariant>

#include <functional>

class QtProperty;

/// Draws the rows of a property tree and edits their values. A step of a spin box and the click on
/// a check box count at once, typed text when it is complete; Escape brings back the value at which
/// the editor was opened. Closing an editor that nobody changed changes nothing, even if it shows
/// fewer figures than the value has.
class PropertyDelegate final : public QStyledItemDelegate {
  Q_OBJECT

public:
  using EditorMaker = std::function<QWidget*(QtProperty* property, QWidget* parent)>;

  /// `makeEditor` makes an editor for a property, or none.
  explicit PropertyDelegate(EditorMaker makeEditor, QObject* parent = nullptr);

  /// Closes the editor of a property, if one is open, without taking what it shows.
  void dropEditor(const QtProperty* property);

  QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const override;
  void setEditorData(QWidget* editor, const QModelIndex& index) const override;
  void setModelData(QWidget* editor, QAbstractItemModel* model,
                    const QModelIndex& index) const override;
  void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                            const QModelIndex& index) const override;

protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
  bool eventFilter(QObject* watched, QEvent* event) override;

private slots:
  void commitSender();

private:
  /// What is being edited. There is one editor at a time.
  struct Editing {
    QPointer<QWidget> editor;
    QPersistentModelIndex index;
    QVariant opened; ///< the value when the editor was opened
    bool wasModified = false;
    QVariant value; ///< of the property, when the editor was last set to it
    QVariant shown; ///< what the editor made of it
  };

  void restore() const;

  EditorMaker makeEditor_;
  mutable Editing editing_; ///< the base class makes and fills editors as if it kept nothing
};
