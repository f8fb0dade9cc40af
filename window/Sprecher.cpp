#include "window/Sprecher.h"

#include "surface/Tastentafel.h"
#include "window/Fenster.h"
#include "window/Knopf.h"
#include "window/Schrift.h"

#include <QAccessibleWidget>
#include <QComboBox>
#include <QListWidget>

#include <algorithm>

namespace velmo {

namespace {

struct Rollenzeile {
    Rolle hier;
    QAccessible::Role dort;
};

constexpr Rollenzeile Rollentafel[] = {
    {Rolle::Zierde, QAccessible::NoRole},       {Rolle::Text, QAccessible::StaticText},
    {Rolle::Ansage, QAccessible::Notification}, {Rolle::Bild, QAccessible::Graphic},
    {Rolle::Gruppe, QAccessible::Grouping},     {Rolle::Knopf, QAccessible::Button},
    {Rolle::Feld, QAccessible::EditableText},
};

Vorleser *vorleserVon(const QWidget *w) {
    const auto *fenster = w ? dynamic_cast<const Fenster *>(w->window()) : nullptr;
    return fenster ? fenster->vorleser() : nullptr;
}

/// Gemeinsames: nur Drücken.
class Drücker : public QAccessibleActionInterface {
  public:
    QStringList actionNames() const override { return drückbar() ? QStringList{pressAction()} : QStringList{}; }
    void doAction(const QString &name) override {
        if (name == pressAction() && drückbar()) drücke();
    }
    QStringList keyBindingsForAction(const QString &) const override { return {}; }

  protected:
    virtual bool drückbar() const = 0;
    virtual void drücke() = 0;
};

/// Ein gezeichnetes Element oder ein Knopf.
class Elementsprecher : public QAccessibleInterface, public Drücker {
  public:
    Elementsprecher(Vorleser &v, std::uint64_t form, VisualControl *c) : v(&v), nummer(form), c(c) {}

    bool isValid() const override { return v; }
    QObject *object() const override { return nullptr; }
    QWindow *window() const override { return v ? v->fenster().windowHandle() : nullptr; }

    QAccessibleInterface *parent() const override {
        if (!v) return nullptr;
        const auto *e = element();
        if (e && e->gruppe)
            if (const auto *gruppe = v->element(nummer, e->gruppe)) return v->objekt(*gruppe);
        for (const Form *form : v->formen())
            if (form->Nummer == nummer) return v->objekt(*form);
        return QAccessible::queryAccessibleInterface(&v->fenster());
    }
    int childCount() const override { return static_cast<int>(kinder().size()); }
    QAccessibleInterface *child(int i) const override {
        const auto alle = kinder();
        return i >= 0 && i < static_cast<int>(alle.size()) ? v->objekt(*alle[static_cast<std::size_t>(i)]) : nullptr;
    }
    int indexOfChild(const QAccessibleInterface *kind) const override {
        const auto alle = kinder();
        const auto hier = std::ranges::find(alle, kind, [&](const auto *e) { return v->objekt(*e); });
        return hier == alle.end() ? -1 : static_cast<int>(hier - alle.begin());
    }
    QAccessibleInterface *childAt(int x, int y) const override {
        for (const auto *e : kinder())
            if (v->ort(*e->control).contains(x, y)) return v->objekt(*e);
        return nullptr;
    }

    QString text(QAccessible::Text was) const override {
        const auto *e = element();
        if (!e) return {};
        if (was == QAccessible::Name) return velmo::text(e->b.name);
        return was == QAccessible::Description ? velmo::text(e->b.beschreibung) : QString();
    }
    void setText(QAccessible::Text, const QString &) override {}
    QRect rect() const override { return element() ? v->ort(*c) : QRect(); }
    QAccessible::Role role() const override {
        const auto *e = element();
        return e ? std::ranges::find(Rollentafel, e->b.rolle, &Rollenzeile::hier)->dort : QAccessible::NoRole;
    }
    QAccessible::State state() const override {
        QAccessible::State s;
        const auto *e = element();
        if (!e) {
            s.invisible = s.disabled = true;
            return s;
        }
        s.disabled = e->gesperrt;
        s.focusable = v->kannFokus(*c);
        s.focused = v->hatFokus(*c);
        s.readOnly = e->b.rolle != Rolle::Knopf;
        return s;
    }
    void *interface_cast(QAccessible::InterfaceType art) override {
        const auto *e = element();
        if (art != QAccessible::ActionInterface || !e || e->b.rolle != Rolle::Knopf) return nullptr;
        return static_cast<QAccessibleActionInterface *>(this);
    }
    QStringList keyBindingsForAction(const QString &) const override {
        if (!element()) return {};
        const auto taste = std::ranges::find(Brettastentafel, std::string_view(c->Name),
                                             [](const Brettaste &t) { return std::string_view(t.Control); });
        const bool gilt = Formularname(c->form.Name) == formular::Form1 && taste != Brettastentafel.end();
        return gilt ? QStringList{taste->Name} : QStringList{};
    }
    QStringList actionNames() const override {
        QStringList namen = Drücker::actionNames();
        if (state().focusable) namen << setFocusAction();
        return namen;
    }
    void doAction(const QString &name) override {
        if (name == setFocusAction())
            v->gibFokus(nummer, c);
        else
            Drücker::doAction(name);
    }

  protected:
    bool drückbar() const override {
        const auto *e = element();
        return e && e->b.rolle == Rolle::Knopf && !e->gesperrt;
    }
    void drücke() override { v->löseAus(nummer, c); }

  private:
    const Vorleser::Element *element() const { return v ? v->element(nummer, c) : nullptr; }
    std::vector<const Vorleser::Element *> kinder() const {
        const auto *e = element();
        return e && e->b.rolle == Rolle::Gruppe ? v->kinder(c->form, c) : std::vector<const Vorleser::Element *>();
    }

    const QPointer<Vorleser> v;
    const std::uint64_t nummer;
    VisualControl *const c; // gilt, solange es sein Element gibt
};

/// Die Zeile einer Liste oder Auswahlliste.
class Zeilensprecher : public QAccessibleInterface, public Drücker {
  public:
    Zeilensprecher(QAccessibleInterface *liste, QWidget *widget, int zeile)
        : liste(liste), widget(widget), zeile(zeile) {}
    bool isValid() const override { return widget; }
    QObject *object() const override { return nullptr; }
    QAccessibleInterface *parent() const override { return widget ? liste : nullptr; }
    QAccessibleInterface *child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    QAccessibleInterface *childAt(int, int) const override { return nullptr; }
    QString text(QAccessible::Text was) const override {
        const Listenelement *l = modell();
        if (!l || was != QAccessible::Name || zeile >= l->ListCount()) return {};
        return velmo::text(l->Zeilen()[static_cast<std::size_t>(zeile)]);
    }
    void setText(QAccessible::Text, const QString &) override {}
    QRect rect() const override {
        const auto *l = qobject_cast<const QListWidget *>(widget);
        if (!l) return widget ? QRect(widget->mapToGlobal(QPoint()), widget->size()) : QRect();
        const QRect r = l->visualItemRect(l->item(zeile));
        return {l->viewport()->mapToGlobal(r.topLeft()), r.size()};
    }
    QAccessible::Role role() const override { return QAccessible::ListItem; }
    QAccessible::State state() const override {
        QAccessible::State s;
        const Listenelement *l = modell();
        s.selectable = s.focusable = true;
        s.selected = l && static_cast<int>(l->ListIndex) == zeile;
        s.focused = s.selected && widget->hasFocus();
        s.disabled = !widget || !widget->isEnabled();
        return s;
    }
    void *interface_cast(QAccessible::InterfaceType art) override {
        return art == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface *>(this) : nullptr;
    }

  protected:
    bool drückbar() const override { return widget && widget->isEnabled(); }
    void drücke() override {
        if (Listenelement *l = modell()) vorleserVon(widget)->wähle(l->form.Nummer, l, zeile);
    }

  private:
    Listenelement *modell() const {
        const auto *fläche = widget ? dynamic_cast<const Formfläche *>(widget->parentWidget()) : nullptr;
        return fläche && vorleserVon(widget) ? dynamic_cast<Listenelement *>(fläche->zu(*widget)) : nullptr;
    }
    QAccessibleInterface *const liste;
    const QPointer<QWidget> widget;
    const int zeile;
};

/// Eine Liste oder Auswahlliste mit ihren Zeilen; eine Auswahlliste nennt auch, was gewählt ist.
class Listensprecher : public QAccessibleWidget {
  public:
    explicit Listensprecher(QWidget *w)
        : QAccessibleWidget(w, qobject_cast<QComboBox *>(w) ? QAccessible::ComboBox : QAccessible::List) {}
    ~Listensprecher() override {
        for (const QAccessible::Id id : zeilen)
            QAccessible::deleteAccessibleInterface(id);
    }
    int childCount() const override {
        const auto *auswahl = qobject_cast<const QComboBox *>(widget());
        return auswahl ? auswahl->count() : static_cast<const QListWidget *>(widget())->count();
    }
    QAccessibleInterface *child(int i) const override {
        if (i < 0 || i >= childCount()) return nullptr;
        auto *ich = const_cast<Listensprecher *>(this);
        while (static_cast<int>(zeilen.size()) <= i)
            ich->zeilen.push_back(QAccessible::registerAccessibleInterface(
                new Zeilensprecher(ich, widget(), static_cast<int>(zeilen.size()))));
        return QAccessible::accessibleInterface(zeilen[static_cast<std::size_t>(i)]);
    }
    int indexOfChild(const QAccessibleInterface *kind) const override {
        for (int i = 0; i < static_cast<int>(zeilen.size()); ++i)
            if (QAccessible::accessibleInterface(zeilen[static_cast<std::size_t>(i)]) == kind) return i;
        return -1;
    }
    QAccessibleInterface *childAt(int x, int y) const override {
        for (int i = 0; i < childCount(); ++i)
            if (child(i)->rect().contains(x, y)) return child(i);
        return nullptr;
    }
    QAccessibleInterface *focusChild() const override { return nullptr; }
    QString text(QAccessible::Text was) const override {
        const auto *auswahl = qobject_cast<const QComboBox *>(widget());
        if (!auswahl || was != QAccessible::Name || auswahl->currentIndex() < 0) return QAccessibleWidget::text(was);
        return QAccessibleWidget::text(was) + ": " + auswahl->currentText();
    }

  private:
    std::vector<QAccessible::Id> zeilen;
};

/// Eine Form.
class Formsprecher : public QAccessibleWidget, public Drücker {
  public:
    explicit Formsprecher(Formfläche *fläche) : QAccessibleWidget(fläche) {}

    QAccessibleInterface *parent() const override { return QAccessible::queryAccessibleInterface(widget()->window()); }
    int childCount() const override { return static_cast<int>(kinder().size()); }
    QAccessibleInterface *child(int i) const override {
        const auto alle = kinder();
        return i >= 0 && i < static_cast<int>(alle.size()) ? v()->objekt(*alle[static_cast<std::size_t>(i)]) : nullptr;
    }
    int indexOfChild(const QAccessibleInterface *kind) const override {
        const auto alle = kinder();
        const auto hier = std::ranges::find(alle, kind, [&](const auto *e) { return v()->objekt(*e); });
        return hier == alle.end() ? -1 : static_cast<int>(hier - alle.begin());
    }
    QAccessibleInterface *childAt(int x, int y) const override {
        for (const auto *e : kinder())
            if (v()->ort(*e->control).contains(x, y)) return v()->objekt(*e);
        return nullptr;
    }
    QAccessibleInterface *focusChild() const override {
        for (const auto *e : kinder())
            if (v()->hatFokus(*e->control)) return v()->objekt(*e);
        return nullptr;
    }
    QAccessible::Role role() const override {
        const Form *f = form();
        return f && benenne(*f).istDialog ? QAccessible::Dialog : QAccessible::Pane;
    }
    QString text(QAccessible::Text was) const override {
        const Form *f = form();
        return was == QAccessible::Name && f ? QString(benenne(*f).Name) : QString();
    }
    QAccessible::State state() const override {
        QAccessible::State s = QAccessibleWidget::state();
        const Form *f = form();
        s.focusable = s.focused = false;
        s.disabled = !f || !f->Enabled;
        return s;
    }
    void *interface_cast(QAccessible::InterfaceType art) override {
        if (art == QAccessible::ActionInterface)
            return drückbar() ? static_cast<QAccessibleActionInterface *>(static_cast<Drücker *>(this)) : nullptr;
        return QAccessibleWidget::interface_cast(art);
    }
    QStringList actionNames() const override { return Drücker::actionNames(); }
    void doAction(const QString &name) override { Drücker::doAction(name); }
    QStringList keyBindingsForAction(const QString &) const override { return {}; }

  protected:
    /// Wo auf der Form nichts zu drücken ist, lässt sich die Form selbst drücken.
    bool drückbar() const override {
        const Form *f = form();
        return f && f->Enabled && f->Click &&
               std::ranges::none_of(kinder(), [](const auto *e) { return e->b.rolle == Rolle::Knopf; });
    }
    void drücke() override { v()->löseAus(form()->Nummer); }

  private:
    Vorleser *v() const { return vorleserVon(widget()); }
    Form *form() const { return v() ? v()->form(static_cast<const Formfläche &>(*widget())) : nullptr; }
    std::vector<const Vorleser::Element *> kinder() const {
        const Form *f = form();
        return f ? v()->kinder(*f, nullptr) : std::vector<const Vorleser::Element *>();
    }
};

/// Das Fenster: die Formen, die zu sehen sind.
class Fenstersprecher : public QAccessibleWidget {
  public:
    explicit Fenstersprecher(Fenster *fenster) : QAccessibleWidget(fenster, QAccessible::Window) {}
    int childCount() const override { return static_cast<int>(formen().size()); }
    QAccessibleInterface *child(int i) const override {
        const auto alle = formen();
        return i >= 0 && i < static_cast<int>(alle.size()) ? v()->objekt(*alle[static_cast<std::size_t>(i)]) : nullptr;
    }
    int indexOfChild(const QAccessibleInterface *kind) const override {
        const auto alle = formen();
        const auto hier = std::ranges::find(alle, kind, [&](const Form *f) { return v()->objekt(*f); });
        return hier == alle.end() ? -1 : static_cast<int>(hier - alle.begin());
    }
    QAccessibleInterface *childAt(int x, int y) const override {
        for (const Form *f : formen())
            if (QAccessibleInterface *o = v()->objekt(*f); o && o->rect().contains(x, y)) return o;
        return nullptr;
    }
    QAccessibleInterface *focusChild() const override {
        for (const Form *f : formen())
            if (QAccessibleInterface *o = v()->objekt(*f))
                if (QAccessibleInterface *kind = o->focusChild()) return kind;
        return nullptr;
    }
    QAccessible::State state() const override {
        QAccessible::State s = QAccessibleWidget::state();
        s.focusable = s.focused = false; // den Fokus hat, was darin liegt
        return s;
    }

  private:
    Vorleser *v() const { return vorleserVon(widget()); }
    std::vector<Form *> formen() const { return v() ? v()->formen() : std::vector<Form *>(); }
};

/// Das Widget eines Knopfs: vorgelesen wird sein Element.
class Stummer : public QAccessibleWidget {
  public:
    explicit Stummer(QWidget *w) : QAccessibleWidget(w, QAccessible::NoRole) {}
    QAccessible::State state() const override {
        QAccessible::State s;
        s.invisible = true;
        return s;
    }
};

} // namespace

QAccessibleInterface *sprecherFür(const QString &, QObject *o) {
    auto *w = qobject_cast<QWidget *>(o);
    if (!w) return nullptr;
    if (auto *fenster = dynamic_cast<Fenster *>(w)) return new Fenstersprecher(fenster);
    if (auto *fläche = dynamic_cast<Formfläche *>(w)) return new Formsprecher(fläche);
    if (!dynamic_cast<Formfläche *>(w->parentWidget())) return nullptr;
    if (qobject_cast<QListWidget *>(w) || qobject_cast<QComboBox *>(w)) return new Listensprecher(w);
    return dynamic_cast<Knopf *>(w) ? new Stummer(w) : nullptr;
}

QAccessibleInterface *neuerSprecher(Vorleser &v, std::uint64_t form, VisualControl *c) {
    return new Elementsprecher(v, form, c);
}

} // namespace velmo
