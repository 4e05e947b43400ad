// One function in the list: its name, editors, what it says and what the camera made of the last value.

import { make, setText } from './dom.js';
import { makeAction, makeEditor, makeSegments } from './editors.js';
import {
	actsOutside, baseOf, choicesOf, explainState, fieldsOf, isAction, numberOf, partOf, print, printLimits, same,
} from './values.js';

const fewInstances = 8;

/** What the editors are made for. If it changes, they are made anew. */
function formOf(description) {
	const { limits, codes, writable } = description;
	return JSON.stringify([limits, codes, writable, fieldsOf(description)]);
}

export class Row {
	#functions;
	#go;
	#family;
	#form = '';
	#noteText = null;
	#editors = new Map(); // by field
	#editor = make('div', { class: 'editor' });
	#meaning = make('span', { class: 'meaning' });
	#limits = make('span', { class: 'limits' });
	#note = make('div', { class: 'note' });
	#default = make('button', { class: 'tool', onclick: () => this.#set(this.description.default) }, '↺');
	#plot;
	#selector;
	#draft = null; // of a record that is being set

	/**
	 * @param plots the curves that are shown
	 * @param go    shows another function, by its name
	 */
	constructor(family, functions, plots, go) {
		this.#family = family;
		this.#functions = functions;
		this.#go = go;
		this.name = family.names[0]; // of the instance that is shown
		this.#plot = make('button', {
			class: 'tool', 'aria-label': `Curve of ${family.name}`, title: 'Show it as a curve',
			onclick: () => plots.toggle(this.name),
		}, '∿');
		this.#note.id = `note-${family.name}`;
		const id = `name-${family.name}`;
		this.element = make('div', { class: 'row', role: 'group', 'aria-labelledby': id },
			make('div', { class: 'name' }, make('span', { id }, family.name), this.#makeSelector()),
			this.#editor,
			make('div', { class: 'tools' }, this.#default, this.#plot),
			make('div', { class: 'about' }, this.#meaning, this.#limits),
			this.#note);
		this.element.dataset.name = family.name;
	}

	get description() {
		return this.#functions.get(this.name) ?? this.#functions.get(this.#family.name);
	}

	/** What a filter looks at. */
	get text() {
		const { meaning = '', topic = '' } = this.description;
		return `${this.#family.name} ${meaning} ${topic}`.toLowerCase();
	}

	#makeSelector() {
		const { count, name, names } = this.#family;
		const label = `Instance of ${name}`;
		if (count === 1) {
			return null;
		}
		if (count <= fewInstances) {
			this.#selector = makeSegments(label, [...names.keys()], (index) => this.select(index));
		} else {
			const input = make('input', {
				type: 'number', min: 0, max: count - 1, 'aria-label': label, class: 'instance',
				onchange: () => this.select(Math.min(Math.max(Math.trunc(input.value), 0), count - 1)),
			});
			this.#selector = {
				element: input,
				show: (index) => {
					input.value = index;
				},
			};
		}
		this.#selector.show(0);
		return this.#selector.element;
	}

	select(index) {
		this.name = this.#family.names[index];
		this.#selector.show(index);
		this.#form = '';
		this.seen();
		this.update();
	}

	/** It came into sight: an instance of many is read only then. */
	seen() {
		if (!this.#functions.get(this.name)) {
			this.#functions.loadInstance(this.name);
		}
	}

	update() {
		const description = this.description;
		const form = formOf(description) + this.name;
		if (form !== this.#form) {
			this.#form = form;
			this.#makeEditors(description);
		}
		const state = explainState(description);
		const busy = this.#functions.isBeingSet(this.name);
		for (const [field, editor] of busy ? [] : this.#editors) {
			editor.show(partOf(description.value, field));
		}
		for (const input of this.#editor.querySelectorAll('input, select, button')) {
			input.disabled = state !== '';
		}
		this.#updateText(description, state);
	}

	#updateText(description, state) {
		const { meaning, writable, error, value } = description;
		const byDefault = description.default ?? null;
		setText(this.#meaning, meaning ?? '');
		const limits = writable ? printLimits(description) : '';
		setText(this.#limits, limits && description.unit ? `${limits} ${description.unit}` : limits);
		this.#default.hidden = byDefault === null || !writable || isAction(description);
		this.#default.disabled = same(byDefault, value) || state !== '';
		this.#default.title = `Back to default: ${print(byDefault)}`;
		this.#default.setAttribute('aria-label', `${this.#family.name} back to default, ${print(byDefault)}`);
		this.#plot.hidden = fieldsOf(description).every(
			(field) => numberOf(description, partOf(value, field)) === null) || isAction(description);
		this.element.classList.toggle('locked', state !== '');
		this.element.classList.toggle('absent', error === 'SDK4_ERR_NOT_IMPLEMENTED');
		this.element.classList.toggle('readonly', !writable);
		this.element.classList.toggle('busy', this.#functions.isBeingSet(this.name));
		this.#showNote(state, this.#functions.note(this.name));
	}

	/** Names of other functions become links to them. */
	#showNote(state, note) {
		const text = [state, note?.text ?? ''].filter(Boolean).join(' · ');
		if (text === this.#noteText) {
			return;
		}
		this.#noteText = text;
		this.#note.className = `note ${note?.kind ?? ''}`;
		this.#note.replaceChildren(...text.split(/\b([a-z]\w*(?:\.\d+)?=[\w|.]*\w)/).map((part) => {
			const [name] = part.split('=');
			return name !== part && this.#functions.families().some((family) => family.name === baseOf(name))
				? make('button', { class: 'link', onclick: () => this.#go(name) }, part) : part;
		}));
	}

	#set(value) {
		this.#functions.set(this.name, value);
		this.update();
	}

	#makeEditors(description) {
		this.#editors.clear();
		const { unit, writable } = description;
		const fields = fieldsOf(description);
		const unitText = unit ? [make('span', { class: 'unit' }, unit)] : [];
		if (isAction(description)) {
			const action = makeAction(description, this.name, (value) => this.#set(value));
			this.#editors.set('', action);
			this.#editor.replaceChildren(action.element);
		} else if (!writable) {
			const text = make('output', {});
			this.#editors.set('', { show: (value) => setText(text, print(value)) });
			this.#editor.replaceChildren(text, ...unitText);
		} else {
			const parts = fields.map((field) => this.#makeEditor(description, field));
			const stacked = parts.some((part) => part.classList.contains('slider'));
			this.#editor.replaceChildren(fields.length === 1 ? parts[0]
				: make('div', { class: stacked ? 'stack' : 'fields' }, ...parts.map((part, index) =>
					make('div', { class: 'field' }, make('span', { 'aria-hidden': 'true' }, fields[index]), part))),
			...unitText);
		}
		for (const input of this.#editor.querySelectorAll('input, select, button')) {
			input.setAttribute('aria-describedby', this.#note.id);
		}
	}

	#makeEditor(description, field) {
		const label = field === '' ? this.name : `${this.name} ${field}`;
		const live = !actsOutside(description) && choicesOf(description, field) === null;
		const editor = makeEditor(description, field, label, live, (value) => {
			this.#draft = field === '' ? value : { ...this.#held(), [field]: value };
			this.#set(this.#draft);
		});
		this.#editors.set(field, editor);
		return editor.element;
	}

	/** A record as it is being set, or as the camera holds it. */
	#held() {
		return this.#functions.isBeingSet(this.name) && this.#draft ? this.#draft : this.description.value;
	}
}
