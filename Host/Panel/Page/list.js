// The functions in groups that fold, with a filter.

import { byId, later, make, memory, remember, setText } from './dom.js';
import { Row } from './row.js';
import { baseOf } from './values.js';

const openAtFirst = ['image', 'exposure', 'processing'];
const filterDelay = 60;
const sightDelay = 150; // milliseconds, before the program is told what is in sight

export class FunctionList {
	#functions;
	#rows = new Map();   // by name without instance
	#groups = new Map(); // by topic
	#open = memory.get('groups', {});
	#inSight = new Set();
	#sight;
	#told;

	/** @param told called when other functions come into sight */
	constructor(functions, plots, told) {
		this.#functions = functions;
		this.#told = later(sightDelay, told);
		this.#sight = new IntersectionObserver((entries) => this.#look(entries), { root: byId('groups') });
		this.plots = plots;
		functions.onChange((name) => this.#rows.get(baseOf(name))?.update());
		byId('filter').addEventListener('input', later(filterDelay, () => this.#filter()));
		byId('filter').addEventListener('keydown', (event) => {
			if (event.key === 'Escape') {
				byId('filter').value = '';
				this.#filter();
			}
		});
		for (const box of document.querySelectorAll('#functions .options input')) {
			remember(box, () => this.#filter());
		}
	}

	/** The names of the functions in sight. */
	shown() {
		return [...this.#inSight].map((row) => row.name);
	}

	/** Makes rows for the functions that have none. */
	build() {
		for (const family of this.#functions.families()) {
			if (!this.#rows.has(family.name)) {
				const row = new Row(family, this.#functions, this.plots, (name) => this.go(name));
				row.update();
				this.#rows.set(family.name, row);
				this.#group(family.topic).append(row.element);
				this.#sight.observe(row.element);
			}
		}
		this.#filter();
	}

	#group(topic) {
		if (!this.#groups.has(topic)) {
			const count = make('span', { class: 'count' });
			const element = make('details', { class: 'group' },
				make('summary', {}, make('h2', {}, topic), count));
			element.open = this.#open[topic] ?? openAtFirst.includes(topic);
			element.addEventListener('toggle', () => {
				if (byId('filter').value === '') {
					this.#open[topic] = element.open;
					memory.set('groups', this.#open);
				}
			});
			byId('groups').append(element);
			this.#groups.set(topic, { element, count });
		}
		return this.#groups.get(topic).element;
	}

	#filter() {
		const words = byId('filter').value.toLowerCase().split(/\s+/).filter(Boolean);
		for (const option of ['readonly', 'absent', 'meanings']) {
			byId('groups').classList.toggle(`show-${option}`, byId(option).checked);
		}
		for (const row of this.#rows.values()) {
			row.element.hidden = !words.every((word) => row.text.includes(word));
		}
		let any = false;
		for (const [topic, { element, count }] of this.#groups) {
			const rows = [...element.querySelectorAll('.row')].filter((row) => getComputedStyle(row).display !== 'none');
			element.hidden = rows.length === 0;
			any ||= rows.length > 0;
			setText(count, String(rows.length));
			const open = words.length > 0 || (this.#open[topic] ?? openAtFirst.includes(topic));
			if (element.open !== open) {
				element.open = open;
			}
		}
		byId('nothing').hidden = any;
	}

	#look(entries) {
		for (const { target, isIntersecting } of entries) {
			const row = this.#rows.get(target.dataset.name);
			if (isIntersecting) {
				this.#inSight.add(row);
				row.seen();
			} else {
				this.#inSight.delete(row);
			}
		}
		this.#told();
	}

	/** Shows a function and puts the focus on it, whatever hides it. */
	go(name) {
		const row = this.#rows.get(baseOf(name));
		const { element } = row;
		if (name !== row.name && name.includes('.')) {
			row.select(Number(name.split('.')[1]));
		}
		byId('filter').value = '';
		for (const kind of ['absent', 'readonly']) {
			byId(kind).checked ||= element.classList.contains(kind);
		}
		this.#filter();
		element.closest('details').open = true;
		element.scrollIntoView({ block: 'center' });
		element.querySelector('.editor :is(input, select, button):not(:disabled)')?.focus();
		element.classList.remove('found');
		requestAnimationFrame(() => element.classList.add('found'));
	}
}
