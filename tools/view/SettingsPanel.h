#pragma once

#include "view/ViewSettings.h"

#include <QWidget>

class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QFormLayout;
class QLineEdit;
class QSpinBox;

namespace plix::tool {

// Controls for everything that a host can set for a card.
class SettingsPanel : public QWidget {
    Q_OBJECT

public:
    // `hasNetwork`: whether pictures can be fetched.
    explicit SettingsPanel(bool hasNetwork, QWidget* parent = nullptr);

    ViewSettings settings() const;
    // Emits changed() once.
    void setSettings(const ViewSettings& settings);
    void toggleDark();

Q_SIGNALS:
    void changed();

private:
    void addCardControls(QFormLayout& form);
    void addTextControls(QFormLayout& form);
    void addChatControls(QFormLayout& form);
    void addPictureControls(QFormLayout& form, bool hasNetwork);
    void connectControls();
    void chooseFolder();
    void change();

    QComboBox* language_;
    QComboBox* from_;
    QSpinBox* height_;
    QLineEdit* background_;
    QLineEdit* highlight_;
    QComboBox* family_;
    QComboBox* wrapMode_;
    QCheckBox* markup_;
    QCheckBox* mobileOnlyCheck_;
    QLineEdit* wording_;
    QCheckBox* dark_;
    QSpinBox* windowWidth_;
    QDoubleSpinBox* dpi_;
    QLineEdit* images_;
    QCheckBox* network_;
    ViewSettings settings_; // with what has no control
    bool isSetting_ = false;
};

} // namespace plix::tool
