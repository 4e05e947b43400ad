// Editors of one value: a switch, a choice, a number with or without a slider, a text; and buttons of actions. Each has
// its element and the function "show" for a value.

import { make } from './dom.js';
import { choicesOf, isSwitch, limitsOf, print } from './values.js';

const logarithmicFrom = 1000; // maximum / minimum
const steps = 1000;           // of a logarithmic slider
const fewChoices = 5;         // that are all shown

let lastGroup = 0;

/** Radio buttons that look like one control. */
export function makeSegments(label, choices, chosen) {
	const group = `choice${++lastGroup}`;
	const inputs = choices.map((choice) => make('input', {
		type: 'radio', name: group, value: choice, onchange: () => chosen(choice),
	}));
	return {
		element: make('div', { class: 'segments', role: 'radiogroup', 'aria-label': label },
			...inputs.map((input, index) => make('label', {}, input, make('span', {}, String(choices[index]))))),
		show(value) {
			inputs.forEach((input, index) => {
				input.checked = choices[index] === value;
			});
		},
	};
}

function makeSwitch(label, commit) {
	const input = make('input', {
		type: 'checkbox', role: 'switch', 'aria-label': label, onchange: () => commit(input.checked ? 'on' : 'off'),
	});
	return {
		element: make('label', { class: 'switch' }, input, make('span')),
		show(value) {
			input.checked = value === 'on';
		},
	};
}

function makeSelect(label, choices, commit) {
	const input = make('select', { 'aria-label': label, onchange: () => commit(choices[input.selectedIndex]) },
		...choices.map((choice) => make('option', {}, String(choice))));
	return {
		element: input,
		show(value) {
			input.selectedIndex = choices.findIndex((choice) => choice === value);
		},
	};
}

/** A field to type in. What is being typed is not overwritten; Escape restores what the camera holds. */
function makeField(attributes, parse, commit) {
	let shown = '';
	const input = make('input', {
		...attributes, spellcheck: 'false', autocomplete: 'off',
		onchange: () => {
			const value = parse(input.value);
			if (value === null) {
				input.value = shown;
			} else {
				shown = input.value;
				commit(value);
			}
		},
		onkeydown: (event) => {
			if (event.key === 'Escape') {
				input.value = shown;
			}
		},
	});
	return {
		element: input,
		show(value) {
			const typing = document.activeElement === input && input.value !== shown;
			shown = value === null || value === undefined ? '' : print(value);
			if (!typing && input.value !== shown) {
				input.value = shown;
			}
		},
	};
}

function numeric(label, limits) {
	return { type: 'number', step: 1, min: limits?.min, max: limits?.max, 'aria-label': label };
}

function parseNumber(text) {
	return /^-?\d+$/.test(text.trim()) ? Number(text) : null;
}

/** The positions of a slider, and what they stand for. */
function scaleOf({ min, max }) {
	if (min <= 0 || max / min <= logarithmicFrom) {
		return { min, max, toValue: Number, toPosition: Number };
	}
	return {
		min: 0,
		max: steps,
		logarithmic: true,
		toValue: (position) => Math.round(min * (max / min) ** (position / steps)),
		toPosition: (value) => steps * Math.log(Math.max(value, min) / min) / Math.log(max / min),
	};
}

/** A number with a slider. The slider sets while it moves, if that is harmless. */
function makeSlider(label, limits, live, commit) {
	const scale = scaleOf(limits);
	let sent = null;
	const send = (value) => {
		if (value !== sent) {
			sent = value;
			commit(value);
		}
	};
	const field = makeField(numeric(label, limits), parseNumber, (value) => {
		sent = null;
		send(value);
	});
	const follow = () => {
		const value = scale.toValue(slider.value);
		field.show(value);
		slider.setAttribute('aria-valuetext', value);
		return value;
	};
	const slider = make('input', {
		type: 'range', step: scale.logarithmic ? 'any' : 1, min: scale.min, max: scale.max,
		'aria-label': `${label}, slider`,
		oninput: () => live ? send(follow()) : follow(),
		onchange: () => send(follow()),
		onkeydown: (event) => {
			const step = { ArrowRight: 1, ArrowUp: 1, ArrowLeft: -1, ArrowDown: -1 }[event.key];
			if (scale.logarithmic && step) {
				event.preventDefault();
				const value = Math.min(Math.max(scale.toValue(slider.value) + step, limits.min), limits.max);
				slider.value = scale.toPosition(value);
				field.show(value);
				send(value);
			}
		},
	});
	return {
		element: make('div', { class: 'slider' }, slider, field.element),
		show(value) {
			sent = value;
			field.show(value);
			slider.value = scale.toPosition(value ?? limits.min);
			slider.setAttribute('aria-valuetext', print(value));
		},
	};
}

/**
 * The editor for a field of a function.
 * @param live   whether it may set each value that is passed
 * @param commit gets a value that was chosen
 */
export function makeEditor(description, field, label, live, commit) {
	const choices = choicesOf(description, field);
	if (isSwitch(choices)) {
		return makeSwitch(label, commit);
	}
	if (choices) {
		const letters = choices.join('').length + 2 * choices.length;
		return choices.length <= fewChoices && letters < 26 ? makeSegments(label, choices, commit)
			: makeSelect(label, choices, commit);
	}
	const limits = limitsOf(description, field);
	const inPixels = field !== '' && description.unit === 'px';
	if (limits && limits.max - limits.min > 1 && !inPixels) {
		return makeSlider(label, limits, live, commit);
	}
	const held = description.value ?? description.default;
	return !limits && field === '' && (typeof held === 'string' || held?.hex !== undefined)
		? makeField({ 'aria-label': label }, (text) => text, commit)
		: makeField(numeric(label, limits), parseNumber, commit);
}

/** The buttons of an action: one for each of its values, or a number and a button. */
export function makeAction(description, label, run) {
	const choices = choicesOf(description, '');
	const limits = limitsOf(description, '');
	const hasValue = !description.trigger;
	const number = make('input', { ...numeric(label, limits), value: limits?.min ?? 1 });
	const button = (text, valueOf) => make('button', { class: 'action', onclick: () => run(valueOf()) }, text);
	const parts = choices ? choices.map((choice) => button(String(choice), () => choice))
		: hasValue ? [number, button('Send', () => parseNumber(number.value) ?? 1)] : [button('Run', () => undefined)];
	return { element: make('div', { class: 'actions' }, ...parts), show() {} };
}
