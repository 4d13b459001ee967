#include "scriptprelude.h"

#include <QJSEngine>
#include <QRegularExpression>

namespace {

const char fileName[] = "prelude";

const char texts[] = R"js((function () {
    var longest = 1 << 24;
    function add(text, piece) {
        text += piece;
        if (!(text.length <= longest))
            throw new RangeError('a text of more than ' + longest + ' characters');
        return text;
    }
    function joined(list, between, textOf) {
        var text = '';
        if (list.length > longest)
            throw new RangeError('a text of more than ' + longest + ' entries');
        for (var i = 0; i < list.length; ++i) {
            if (i > 0)
                text = add(text, between);
            if (list[i] !== null && list[i] !== undefined)
                text = add(text, textOf(list[i]));
        }
        return text;
    }
    Array.prototype.join = function (separator) {
        return joined(this, separator === undefined ? ',' : String(separator), String);
    };
    Array.prototype.toLocaleString = function () {
        return joined(this, ',', function (entry) { return String(entry.toLocaleString()); });
    };
    Error.prototype.toString = function () {
        var name = this.name === undefined ? 'Error' : String(this.name);
        var message = this.message === undefined ? '' : String(this.message);
        return name && message ? name + ': ' + message : name + message;
    };
}))js";

const char makePrint[] = R"js((function (console) {
    return function print() { console.writeLine(Array.prototype.map.call(arguments, String).join(' ')); };
}))js";

const char makeTerminal[] = R"js((function (terminal) {
    function refuse(target, name) {
        throw new TypeError('the terminal has no "' + String(name) + '" to set');
    }
    return new Proxy(terminal, {
        defineProperty: refuse,
        set: function (target, name, value) {
            if (!(name in target))
                refuse(target, name);
            target[name] = value;
            return true;
        }
    });
}))js";

const char makeError[] =
    "(function (thrown) { try {"
    " if (!(thrown instanceof Error)) { thrown = new Error(String(thrown)); thrown.lineNumber = null; }"
    " if (!(String(thrown).length <= 1000)) thrown.message = String(thrown.message).slice(0, 1000);"
    " } catch (untold) { thrown = new Error('what was thrown has no text'); thrown.lineNumber = null; }"
    " return thrown; })";

QJSValue evaluated(QJSEngine &engine, const char *source)
{
    return engine.evaluate(QString::fromLatin1(source), QString::fromLatin1(fileName));
}

} // namespace

void ScriptPrelude::provide(QJSEngine &engine, QObject *terminal, QObject *console)
{
    evaluated(engine, texts).call();
    QJSValue global = engine.globalObject();
    global.setProperty(QStringLiteral("terminal"), evaluated(engine, makeTerminal).call({engine.newQObject(terminal)}));
    global.setProperty(QStringLiteral("print"), evaluated(engine, makePrint).call({engine.newQObject(console)}));
}

QString ScriptPrelude::guarded(const QString &program)
{
    return QStringLiteral("try { %1\n} catch (thrown) { throw %2(thrown); }")
        .arg(program, QString::fromLatin1(makeError));
}

int ScriptPrelude::lineOf(const QJSValue &error)
{
    const QJSValue line = error.property(QStringLiteral("lineNumber"));
    if (!line.isNumber())
        return 0;
    if (!error.property(QStringLiteral("fileName")).toString().endsWith(QLatin1String(fileName)))
        return line.toInt();
    // Innermost first, "function@file:line" each.
    static const QRegularExpression frame(QStringLiteral("@[^\\n]*(?<!:%1):([0-9]+)$").arg(QLatin1String(fileName)),
                                          QRegularExpression::MultilineOption);
    return frame.match(error.property(QStringLiteral("stack")).toString()).captured(1).toInt();
}
