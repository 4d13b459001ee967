#pragma once

#include <QVariant>

/// A write validator that always returns the same code and keeps what it was asked; its argument is its address.
struct ValidatorCall {
    explicit ValidatorCall(int answerCode);

    int code;
    int calls = 0;
    QVariant value;

    static int answer(QVariant value, void *call);
};
